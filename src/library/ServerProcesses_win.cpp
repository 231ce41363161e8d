#include "ServerProcesses.h"

#include <QProcess>

namespace ServerProcesses {

namespace {
constexpr int kWaitMs = 30000;
}

QString programName()
{
    return QStringLiteral("Quorin Player Server.exe");
}

int killAll(const QString &)
{
    // By image name: a server started from another folder holds the same port.
    QProcess process;
    process.start(QStringLiteral("cmd.exe"), {QStringLiteral("/c"), QStringLiteral("taskkill"),
                                              QStringLiteral("-f"), QStringLiteral("-im"), programName()});
    process.waitForFinished(kWaitMs);
    process.close();
    return -1;
}

} // namespace ServerProcesses
