// What a desktop sees of the running player: its media session on the bus of the display at hand.
#pragma once

#include <QString>
#include <QVariant>

class Mpris final {
public:
    // Waits until the session is there.
    [[nodiscard]] bool waitForSession(int timeoutMs = 20000) const;

    [[nodiscard]] QVariant property(const QString &name) const;
    [[nodiscard]] QString status() const { return property(QStringLiteral("PlaybackStatus")).toString(); }
    [[nodiscard]] double seconds() const;
    [[nodiscard]] double lengthSeconds() const;
    [[nodiscard]] double volume() const { return property(QStringLiteral("Volume")).toDouble(); }
    [[nodiscard]] double rate() const { return property(QStringLiteral("Rate")).toDouble(); }
    [[nodiscard]] bool isFullScreen() const;

    void openUri(const QString &path) const;
    void goTo(double seconds) const;
};
