// The proxy that the settings tell to use: the manual one, or the system's as it was found when it was
// chosen.
//
// The two are kept apart, so that a manual proxy comes back with all it had after a time without it.
// Stateless; any thread.
#pragma once

#include <QString>

class SettingsManager;

struct StoredProxy {
    bool isEnabled{false};
    int type{0}; // 0 the system's, 1 HTTP, 2 SOCKS
    QString host;
    QString port;
    QString userName;
    QString password;

    [[nodiscard]] static StoredProxy inUse(const SettingsManager &settings);
    // Chooses the system's proxy; an empty host when it has none. What is stored of a manual one stays.
    static void chooseSystem(SettingsManager &settings, const QString &host, const QString &port);
};
