// The client's one door to the media server, the separate program that owns the library.
//
// One object a process, made on the GUI thread and never destroyed before the process ends.
#pragma once

#include <QMutex>
#include <QObject>
#include <QString>

class MediaServerManager final : public QObject {
    Q_OBJECT
public:
    static MediaServerManager *instance();

    explicit MediaServerManager(QObject *parent = nullptr)
        : QObject(parent)
    {
    }

    // The language in which the server fetches its metadata, in the server's words ("en", "zh-TW").
    void setScraperLanguage(const QString &language);
    [[nodiscard]] QString scraperLanguage() const;

    // The form of a path that the engine can open. Any thread.
    [[nodiscard]] QString playPath(const QString &path) const;

    // Ends every server of this user that was started from this program's folder, whoever started it.
    static void killServerProcess();

    // Name of the server's program beside the player.
    [[nodiscard]] static QString serverPath();

private:
    mutable QMutex m_mutex;
    QString m_scraperLanguage;
};
