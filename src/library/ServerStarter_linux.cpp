#include "ServerStarter.h"

#include <QProcess>

bool ServerStarter::startBySystem(const QString &program)
{
    QProcess process;
    process.setProgram(program);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}
