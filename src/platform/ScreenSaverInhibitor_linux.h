// Asks the desktop over the session bus to leave the screen on. The wish may come before the application
// object exists and is carried out once there is one. All that may wait, the connection included, happens on
// a thread of its own. Owns that thread. Main thread.
#pragma once

#include <QString>

#include <functional>
#include <memory>

class ThreadWorker;

class ScreenSaverInhibitor final {
public:
    // An empty address means that there is no bus.
    explicit ScreenSaverInhibitor(const QString &busAddress);
    ~ScreenSaverInhibitor();
    ScreenSaverInhibitor(const ScreenSaverInhibitor &) = delete;
    ScreenSaverInhibitor &operator=(const ScreenSaverInhibitor &) = delete;

    void setInhibited(bool inhibited);

    // Carries the latest wish out, if there is an application object and something to do.
    void apply();

    // Told on the main thread each time a wish has been carried out, with whether an inhibition is held now.
    void setAppliedHandler(std::function<void(bool held)> handler) { m_applied = std::move(handler); }

    // Where the session bus listens, without starting one; empty when there is none.
    [[nodiscard]] static QString sessionBusAddress();

private:
    class Link;

    // The link is used on the worker's thread only.
    std::shared_ptr<Link> m_link;
    std::unique_ptr<ThreadWorker> m_worker;
    std::function<void(bool)> m_applied;
    bool m_wanted{false};
    bool m_sent{false};
};
