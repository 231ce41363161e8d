#include "ProgramFolder.h"

#include <QDir>
#include <QFileInfo>

#include <array>

#include <windows.h>

QString programFolder()
{
    std::array<wchar_t, 32768> path{}; // as long as a path can be
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), DWORD(path.size()));
    if (length == 0 || length >= path.size())
        return {};
    return QFileInfo(QDir::fromNativeSeparators(QString::fromWCharArray(path.data(), int(length)))).path();
}
