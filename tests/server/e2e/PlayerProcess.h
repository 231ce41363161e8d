// The player's own program without a display, in a home of its own, with the media server beside it that it
// starts by itself. Owns the process and ends it.
//
// The programs are linked into a folder of their own: a player that ends takes every server of its folder
// with it, also those of tests that run at the same time.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

class PlayerProcess final {
public:
    PlayerProcess();
    ~PlayerProcess();
    PlayerProcess(const PlayerProcess &) = delete;
    PlayerProcess &operator=(const PlayerProcess &) = delete;

    [[nodiscard]] bool start(const QStringList &arguments);
    // Asks it to end as the system does, which closes its window; the exit status, or -1 when it did not end
    // by itself.
    [[nodiscard]] int stop();
    // SIGKILL, and waits for the end.
    void kill();

    [[nodiscard]] QString log() const;
    [[nodiscard]] bool waitForLog(const QString &text) const;
    // The data folder of the server that the player starts.
    [[nodiscard]] QString serverFolder() const;
    // Where that server is asked.
    [[nodiscard]] int serverPort() const { return m_serverPort; }
    // The server's process; 0 where none runs.
    [[nodiscard]] qint64 serverId() const;
    // False when the process, no child of this one, still lives after a while.
    [[nodiscard]] static bool waitForEnd(qint64 id);
    // The program by a path of its own in the folder.
    [[nodiscard]] static QString linked(const QString &program, const QTemporaryDir &folder);

private:
    QTemporaryDir m_home;
    QTemporaryDir m_programs;
    QString m_server;
    int m_serverPort{0};
    QProcess m_process;
};
