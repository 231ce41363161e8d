#include "ProgramFolder.h"

#include <QFileInfo>

QString programFolder()
{
    const QString program = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
    return program.isEmpty() ? QString() : QFileInfo(program).path();
}
