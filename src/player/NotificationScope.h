// Marks a thread as running a notification of the engine. The engine's close() waits for the notification
// that runs, so what ends a play must not be done inside of one.
#pragma once

class NotificationScope final {
public:
    NotificationScope();
    ~NotificationScope();
    NotificationScope(const NotificationScope &) = delete;
    NotificationScope &operator=(const NotificationScope &) = delete;

    // True on a thread with a scope alive.
    [[nodiscard]] static bool active();
};
