#include "ServerProcess.h"

#include "library/HttpTransport.h"
#include "library/JsonRpc.h"
#include "library/VideoProtocol.h"

#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>

#include <csignal>

namespace {

constexpr int StartMs = 30000;
constexpr int EndMs = 30000;

// Silently: the transport logs each refused connection.
bool isListenedOn(int port)
{
    QTcpSocket socket;
    socket.connectToHost(QHostAddress(QHostAddress::LocalHost), quint16(port));
    return socket.waitForConnected(EndMs);
}

} // namespace

ServerProcess::ServerProcess(const QString &dataFolder)
    : ServerProcess(QProcessEnvironment::systemEnvironment(), dataFolder)
{
    m_process.setArguments({m_dataFolder});
}

ServerProcess::ServerProcess(const QProcessEnvironment &environment, const QString &expectedFolder)
    : m_dataFolder(expectedFolder)
    , m_port(freePort())
{
    QProcessEnvironment own = environment;
    own.insert("QUORIN_LIBRARY_PORT", QString::number(m_port));
    m_process.setProcessEnvironment(own);
    m_process.setProgram(QUORIN_SERVER);
    m_process.setProcessChannelMode(QProcess::ForwardedChannels);
    m_process.setStandardInputFile(QProcess::nullDevice());
}

ServerProcess::~ServerProcess()
{
    kill();
}

int ServerProcess::freePort()
{
    QTcpServer server;
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    return server.serverPort();
}

bool ServerProcess::start()
{
    m_process.start();
    if (!m_process.waitForStarted(StartMs))
        return false;
    const bool isUp = QTest::qWaitFor(
        [this] { return m_process.state() == QProcess::NotRunning || isListenedOn(m_port); }, StartMs);
    HttpTransport transport;
    return isUp && isRunning() && VideoProtocol(JsonRpc(transport, m_port)).libraryId().has_value();
}

int ServerProcess::stop()
{
    m_process.terminate();
    const bool hasEnded = m_process.waitForFinished(EndMs);
    const bool isClean = hasEnded && m_process.exitStatus() == QProcess::NormalExit;
    kill();
    return isClean ? m_process.exitCode() : -1;
}

void ServerProcess::kill()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    EXPECT_TRUE(m_process.waitForFinished(EndMs));
}

int ServerProcess::residentKib() const
{
    QFile file(QStringLiteral("/proc/%1/status").arg(m_process.processId()));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).simplified().split(' ').first().toInt();
    }
    return 0;
}

QString ServerProcess::log() const
{
    QFile file(m_dataFolder + "/server.log");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}
