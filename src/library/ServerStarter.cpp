#include "ServerStarter.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFile>
#include <QProcess>
#include <QThread>

namespace {

constexpr int kEndMs = 30000;
// What a server takes to close its database; one that scans may have to be ended.
constexpr int kPoliteMs = 1000;

} // namespace

ServerStarter::ServerStarter() = default;

ServerStarter::~ServerStarter()
{
    release();
}

bool ServerStarter::isHeld() const
{
    std::lock_guard lock(m_mutex);
    return m_process != nullptr;
}

bool ServerStarter::start(const QString &program, const QString &dataFolder, int waitMs)
{
    std::lock_guard lock(m_mutex);
    if (!QFile::exists(program)) {
        qInfo().noquote() << "[Media server] there is no server at" << program;
        return false;
    }
    m_process = std::make_unique<QProcess>();
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setStandardOutputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    const auto isRunning = std::make_shared<std::atomic<bool>>(true);
    m_isRunning = isRunning;
    QObject::connect(m_process.get(), QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished),
                     m_process.get(), [isRunning] { *isRunning = false; });
    m_process->start(program, {dataFolder}, QIODevice::ReadWrite);
    const bool isStarted = m_process->waitForStarted(waitMs);
    if (!isStarted) {
        *isRunning = false;
        qInfo().noquote() << "[Media server] not started:" << m_process->errorString();
    }
    // The thread that starts it ends soon: the process is to notice its end in one that lives on.
    if (QCoreApplication::instance())
        m_process->moveToThread(QCoreApplication::instance()->thread());
    return isStarted;
}

bool ServerStarter::isRunning() const
{
    std::lock_guard lock(m_mutex);
    return *m_isRunning;
}

bool ServerStarter::startPlain(const QString &program)
{
    return QFile::exists(program) && startBySystem(program);
}

void ServerStarter::release()
{
    std::lock_guard lock(m_mutex);
    if (!m_process)
        return;
    *m_isRunning = false;
    if (m_process->thread() != QThread::currentThread()) {
        m_process->kill();
        // Its notifiers may be taken down in its own thread only.
        m_process.release()->deleteLater();
        return;
    }
    m_process->terminate();
    if (!m_process->waitForFinished(kPoliteMs)) {
        m_process->kill();
        m_process->waitForFinished(kEndMs);
    }
    m_process.reset();
}
