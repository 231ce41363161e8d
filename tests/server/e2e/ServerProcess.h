// The media server's own program on a data folder and a port of its own. Owns the process and ends it.
#pragma once

#include <QProcess>
#include <QString>

class ServerProcess final {
public:
    explicit ServerProcess(const QString &dataFolder);
    // Without a data folder, in an environment of its own: where it looks then.
    ServerProcess(const QProcessEnvironment &environment, const QString &expectedFolder);
    ~ServerProcess();
    ServerProcess(const ServerProcess &) = delete;
    ServerProcess &operator=(const ServerProcess &) = delete;

    // One that nothing listens on at this moment.
    [[nodiscard]] static int freePort();

    // Starts the program and waits until it answers; false when it ends or keeps silent.
    [[nodiscard]] bool start();
    // Asks it to end as the system does; the exit status, or -1 when it did not end by itself.
    [[nodiscard]] int stop();
    // SIGKILL, and waits for the end.
    void kill();
    [[nodiscard]] bool isRunning() const { return m_process.state() == QProcess::Running; }
    [[nodiscard]] int port() const { return m_port; }
    // Memory that the process has in use, in KiB; 0 when it can't be told.
    [[nodiscard]] int residentKib() const;
    [[nodiscard]] QString log() const;

private:
    const QString m_dataFolder;
    int m_port{0};
    QProcess m_process;
};
