#include "FolderOpener.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <windows.h>

namespace {

// By its full path: the search for a bare name begins in the folder of the program.
QString explorer()
{
    wchar_t folder[MAX_PATH] = {};
    const UINT length = GetWindowsDirectoryW(folder, MAX_PATH);
    const QString name = QStringLiteral("explorer.exe");
    return length == 0 || length >= MAX_PATH
               ? name
               : QString::fromWCharArray(folder, int(length)) + QLatin1Char('\\') + name;
}

bool start(const QString &arguments)
{
    QProcess process;
    process.setProgram(explorer());
    process.setNativeArguments(arguments);
    return process.startDetached();
}

// Explorer reads its command line itself: the quotes belong behind the comma, and no file name holds one.
QString quoted(const QString &path)
{
    QString native = QDir::toNativeSeparators(path);
    native.remove(QLatin1Char('"'));
    return QLatin1Char('"') + native + QLatin1Char('"');
}

bool openByExplorer(const QString &folder)
{
    return start(quoted(folder));
}

} // namespace

FolderOpener::FolderOpener()
    : FolderOpener(QString(), openByExplorer)
{
}

void FolderOpener::showNow(const QString &, const QString &path, const OpenFolder &openFolder)
{
    // Explorer shows the folder by itself where the file is gone.
    if (start(QStringLiteral("/select,") + quoted(path)))
        return;
    if (!openFolder(QFileInfo(path).absolutePath()))
        qInfo().noquote() << "[Folder] could not be opened:" << path;
}
