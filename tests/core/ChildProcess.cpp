#include "ChildProcess.h"

#include <QDeadlineTimer>

#include <csignal>

ChildProcess::ChildProcess(const QStringList &arguments)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.start(QStringLiteral(CORE_CHILD), arguments);
    m_process.waitForStarted();
}

ChildProcess::~ChildProcess()
{
    if (running())
        kill();
}

QString ChildProcess::line(int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (!m_process.canReadLine()) {
        if (deadline.hasExpired() || !m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            break;
    }
    return QString::fromLocal8Bit(m_process.readLine()).trimmed();
}

void ChildProcess::tell(const QString &command)
{
    m_process.write(command.toLocal8Bit() + '\n');
    m_process.waitForBytesWritten();
}

int ChildProcess::end(int timeoutMs)
{
    if (running() && !m_process.waitForFinished(timeoutMs))
        return -1;
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

void ChildProcess::kill()
{
    m_process.kill();
    m_process.waitForFinished();
}

void ChildProcess::signal(int number)
{
    ::kill(static_cast<pid_t>(m_process.processId()), number);
}
