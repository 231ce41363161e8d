#include "ServerProcesses.h"

#include <QDir>
#include <QFileInfo>

#include <csignal>
#include <unistd.h>

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
    int ended = 0;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &entry : entries) {
        bool isNumber = false;
        const int id = entry.toInt(&isNumber);
        // The link can be read for processes of this user only, which is the very set that is meant.
        if (!isNumber || QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(id)) != program)
            continue;
        if (::kill(pid_t(id), SIGKILL) == 0)
            ++ended;
    }
    return ended;
}

} // namespace ServerProcesses
