// Keeps where each source was left: second, last picture, and the choice of tracks.
//
// A view of the settings, which it does not own. Every write reaches the disc at once. GUI thread.
#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QtGlobal>

class SettingsManager;

class PositionStore final {
public:
    // What is known of a source; zero and empty where nothing is stored.
    struct Entry {
        int seconds{0};
        QByteArray picture; // PNG
        int audioIndex{0};
        QByteArray subtitle;
    };

    // How a play stopped.
    struct Stop {
        QString path; // a single character is a drive letter
        qint64 positionMs{0};
        qint64 totalMs{0};
        bool reachedEnd{false};
        QImage lastFrame; // may be null
    };

    // The stored picture fits into this: it is shown small, and the settings file holds one for each source.
    static constexpr QSize PictureSize{224, 126};

    explicit PositionStore(SettingsManager &settings);

    [[nodiscard]] Entry read(const QString &key) const;

    // Stores the position and the picture of a stop where the rule wants it; false where nothing was written.
    // discName names the disc of a drive letter and may be empty.
    bool record(const Stop &stop, const QString &discName);

    void storeTracks(const QString &key, int audioIndex, const QByteArray &subtitle);

    // Whether the user wants to go on at the stored position without being asked.
    [[nodiscard]] bool remembersPosition() const;

private:
    SettingsManager &m_settings;
};
