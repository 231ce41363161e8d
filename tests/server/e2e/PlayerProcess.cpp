#include "PlayerProcess.h"

#include "ServerProcess.h"

#include "core/ApplicationInfoManager.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

#include <cerrno>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr int StartMs = 30000;
constexpr int EndMs = 30000;
// The first scan comes five seconds after the start, and a busy machine takes its time.
constexpr int LogMs = 90000;

} // namespace

PlayerProcess::PlayerProcess()
    : m_programs(QFileInfo(QStringLiteral(QUORIN_PLAYER)).path() + "/player-XXXXXX")
    , m_serverPort(ServerProcess::freePort())
{
    const QDir home(m_home.path());
    for (const char *folder : {"data", "config", "cache", "run", "tmp", "Documents", "Pictures"})
        EXPECT_TRUE(home.mkpath(folder));
    QFile::setPermissions(home.filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QUORIN_NO_LIBRARY");
    environment.remove("DISPLAY");
    environment.insert("QUORIN_LIBRARY_PORT", QString::number(m_serverPort));
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("ORBIX_AO", "null");
    // On the bus of all tests it would be found by one that looks for its own player.
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home.filePath("no-bus"));
    environment.insert("HOME", home.path());
    environment.insert("XDG_DATA_HOME", home.filePath("data"));
    environment.insert("XDG_CONFIG_HOME", home.filePath("config"));
    environment.insert("XDG_CACHE_HOME", home.filePath("cache"));
    environment.insert("XDG_RUNTIME_DIR", home.filePath("run"));
    environment.insert("TMPDIR", home.filePath("tmp"));
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_server = linked(QStringLiteral(QUORIN_SERVER), m_programs);
    m_process.setProgram(linked(QStringLiteral(QUORIN_PLAYER), m_programs));
    const QDir built = QFileInfo(QStringLiteral(QUORIN_PLAYER)).dir();
    for (const char *name : {"libOrbix.so", "quorin6.rcc"})
        (void)linked(built.filePath(name), m_programs);
}

PlayerProcess::~PlayerProcess()
{
    const qint64 server = serverId();
    kill();
    if (server != 0) {
        EXPECT_TRUE(waitForEnd(server)) << "the server outlives its player";
    }
    if (testing::Test::HasFailure())
        std::fprintf(stderr, "---- player.log\n%s----\n", qUtf8Printable(log()));
}

QString PlayerProcess::linked(const QString &program, const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QFileInfo(program).fileName());
    const bool isThere =
        ::link(QFile::encodeName(program).constData(), QFile::encodeName(path).constData()) == 0
        || QFile::copy(program, path);
    EXPECT_TRUE(isThere) << qPrintable(path);
    return path;
}

bool PlayerProcess::start(const QStringList &arguments)
{
    m_process.setArguments(arguments);
    m_process.start();
    return m_process.waitForStarted(StartMs);
}

int PlayerProcess::stop()
{
    m_process.terminate();
    const bool hasEnded = m_process.waitForFinished(EndMs);
    const bool isClean = hasEnded && m_process.exitStatus() == QProcess::NormalExit;
    kill();
    return isClean ? m_process.exitCode() : -1;
}

void PlayerProcess::kill()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.kill();
    EXPECT_TRUE(m_process.waitForFinished(EndMs));
}

QString PlayerProcess::log() const
{
    QFile file(m_home.filePath(
        QStringLiteral("Documents/%1/Log/%2")
            .arg(ApplicationInfoManager::productName(), ApplicationInfoManager::logFileName())));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool PlayerProcess::waitForLog(const QString &text) const
{
    return QTest::qWaitFor([&] { return log().contains(text); }, LogMs);
}

QString PlayerProcess::serverFolder() const
{
    return m_home.filePath(QStringLiteral("data/%1/mediaServer").arg(ApplicationInfoManager::productName()));
}

qint64 PlayerProcess::serverId() const
{
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        if (QFile::symLinkTarget("/proc/" + entry + "/exe") == m_server)
            return entry.toLongLong();
    }
    return 0;
}

bool PlayerProcess::waitForEnd(qint64 id)
{
    const int handle = int(::syscall(SYS_pidfd_open, pid_t(id), 0U));
    if (handle < 0)
        return errno == ESRCH;
    pollfd waiting{handle, POLLIN, 0};
    const int ready = ::poll(&waiting, 1, EndMs);
    ::close(handle);
    return ready > 0;
}
