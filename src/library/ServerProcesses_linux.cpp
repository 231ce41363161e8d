#include "ServerProcesses.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <vector>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;
// What a server takes to close its database.
constexpr std::chrono::milliseconds kPolite{1000};

struct Server {
    pid_t id;
    int handle; // -1 where the kernel gives none
};

// The link can be read for processes of this user only, which is the very set that is meant.
std::vector<Server> serversOf(const QString &program)
{
    std::vector<Server> servers;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        bool isNumber = false;
        const auto id = pid_t(entry.toInt(&isNumber));
        if (isNumber && QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(id)) == program)
            servers.push_back({id, int(::syscall(SYS_pidfd_open, id, 0U))});
    }
    return servers;
}

bool endsBefore(const Server &server, Clock::time_point end)
{
    if (server.handle < 0)
        return false;
    pollfd waiting{server.handle, POLLIN, 0};
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now()).count();
        const int ready = ::poll(&waiting, 1, left > 0 ? int(left) : 0);
        if (ready >= 0 || errno != EINTR)
            return ready > 0;
    }
}

} // namespace

namespace ServerProcesses {

QString programName()
{
    return QStringLiteral("Quorin Player Server");
}

int killAll(const QString &programPath)
{
    const QString program = QFileInfo(programPath).canonicalFilePath();
    if (program.isEmpty())
        return 0;
    const std::vector<Server> servers = serversOf(program);
    int ended = 0;
    for (const Server &server : servers) {
        if (::kill(server.id, SIGTERM) == 0)
            ++ended;
    }
    const Clock::time_point end = Clock::now() + kPolite;
    for (const Server &server : servers) {
        if (!endsBefore(server, end))
            ::kill(server.id, SIGKILL);
        if (server.handle >= 0)
            ::close(server.handle);
    }
    return ended;
}

} // namespace ServerProcesses
