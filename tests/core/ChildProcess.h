// One run of core_child: its lines one by one, its end within a time.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

class ChildProcess final {
public:
    explicit ChildProcess(const QStringList &arguments);
    ~ChildProcess();

    // The next line; empty when none comes in time.
    QString line(int timeoutMs = 10000);
    void tell(const QString &command);
    // The exit status; -1 when it does not end in time or was killed.
    int end(int timeoutMs = 10000);
    void kill();
    void signal(int number);
    [[nodiscard]] bool running() const { return m_process.state() != QProcess::NotRunning; }

private:
    QProcess m_process;
};
