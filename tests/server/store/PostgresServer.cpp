#include "PostgresServer.h"

#include <QDir>
#include <QTemporaryDir>

#include <cstdio>

#include <csignal>
#include <pwd.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

constexpr int kPatienceMs = 60000;

QString programs()
{
    const QDir versions(QStringLiteral("/usr/lib/postgresql"));
    const QStringList names =
        versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed);
    for (const QString &name : names) {
        const QString folder = versions.filePath(name) + QStringLiteral("/bin/");
        if (QFile::exists(folder + QStringLiteral("initdb"))
            && QFile::exists(folder + QStringLiteral("postgres")))
            return folder;
    }
    return {};
}

} // namespace

PostgresServer::PostgresServer() = default;

PostgresServer::~PostgresServer()
{
    if (m_server.state() == QProcess::NotRunning)
        return;
    // Its own word for: end now, whoever is connected.
    ::kill(static_cast<pid_t>(m_server.processId()), SIGINT);
    if (!m_server.waitForFinished(kPatienceMs))
        m_server.kill();
}

QString PostgresServer::user()
{
    return QStringLiteral("postgres");
}

QString PostgresServer::host() const
{
    return m_folder->path();
}

void PostgresServer::prepare(QProcess *process, const QString &program, const QStringList &arguments)
{
    if (::geteuid() != 0) {
        process->start(program, arguments);
        return;
    }
    // The server refuses to run as root. setpriv becomes the program, so its id is the server's own, and
    // the server ends with the tests even when these are killed.
    process->start(QStringLiteral("setpriv"),
                   QStringList{QStringLiteral("--reuid=") + user(), QStringLiteral("--regid=") + user(),
                               QStringLiteral("--clear-groups"), QStringLiteral("--pdeathsig"),
                               QStringLiteral("INT"), QStringLiteral("--"), program}
                       + arguments);
}

QString PostgresServer::run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    prepare(&process, program, arguments);
    if (process.waitForFinished(kPatienceMs) && process.exitStatus() == QProcess::NormalExit
        && process.exitCode() == 0)
        return {};
    return program + QStringLiteral(": ") + process.errorString() + QString::fromLocal8Bit(process.readAll());
}

QString PostgresServer::start()
{
    const QString folder = programs();
    if (folder.isEmpty())
        return QStringLiteral("no PostgreSQL programs on this machine");
    // Not below the tests' home, which the server's user cannot enter; and a socket's path must be short.
    m_folder = std::make_unique<QTemporaryDir>(QStringLiteral(P_tmpdir "/quorin-pg-XXXXXX"));
    if (::geteuid() == 0) {
        const passwd *account = ::getpwnam(qPrintable(user()));
        if (!account)
            return QStringLiteral("no account to run a server");
        if (::chown(qPrintable(m_folder->path()), account->pw_uid, account->pw_gid) != 0)
            return QStringLiteral("the folder cannot be given to the server");
    }
    const QString data = m_folder->filePath(QStringLiteral("data"));
    const QString failure = run(folder + QStringLiteral("initdb"),
                                {QStringLiteral("--no-sync"), QStringLiteral("-A"), QStringLiteral("trust"),
                                 QStringLiteral("-U"), user(), QStringLiteral("-E"), QStringLiteral("UTF8"),
                                 QStringLiteral("--locale=C"), QStringLiteral("-D"), data});
    if (!failure.isEmpty())
        return failure;
    m_server.setProcessChannelMode(QProcess::MergedChannels);
    prepare(&m_server, folder + QStringLiteral("postgres"),
            {QStringLiteral("-D"), data, QStringLiteral("-k"), m_folder->path(), QStringLiteral("-c"),
             QStringLiteral("listen_addresses="), QStringLiteral("-c"), QStringLiteral("fsync=off")});
    QByteArray output;
    while (!output.contains("ready to accept connections")) {
        if (!m_server.waitForReadyRead(kPatienceMs))
            return QStringLiteral("the server did not start: ") + QString::fromLocal8Bit(output);
        output += m_server.readAll();
    }
    return {};
}
