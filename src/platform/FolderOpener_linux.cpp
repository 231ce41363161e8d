#include "FolderOpener.h"

#include "ScreenSaverInhibitor_linux.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QUrl>
#include <QUuid>

namespace {

constexpr char kService[] = "org.freedesktop.FileManager1";
constexpr char kPath[] = "/org/freedesktop/FileManager1";
// A file manager that has to be started first takes its time.
constexpr int kCallTimeoutMs = 10000;

bool openByDesktop(const QString &folder)
{
    return QProcess::startDetached(QStringLiteral("xdg-open"), {folder});
}

bool showByFileManager(const QString &busAddress, const QString &path)
{
    if (busAddress.isEmpty())
        return false;
    const QString name =
        QStringLiteral("folder-opener-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
    bool isShown = false;
    {
        QDBusConnection bus = QDBusConnection::connectToBus(busAddress, name);
        QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, kService, "ShowItems");
        message.setArguments(
            {QStringList(QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded())), QString()});
        const QDBusMessage reply = bus.call(message, QDBus::Block, kCallTimeoutMs);
        isShown = reply.type() == QDBusMessage::ReplyMessage;
        if (!isShown)
            qInfo().noquote() << "[Folder] no file manager answers:" << reply.errorMessage();
    }
    QDBusConnection::disconnectFromBus(name);
    return isShown;
}

// The folder of what is gone may still be there, or one above it.
QString nearestFolder(const QString &path)
{
    QDir folder = QFileInfo(path).absoluteDir();
    while (!folder.exists() && !folder.isRoot()) {
        const QString above = QFileInfo(folder.path()).path();
        if (above == folder.path())
            break;
        folder.setPath(above);
    }
    return folder.path();
}

} // namespace

FolderOpener::FolderOpener()
    : FolderOpener(ScreenSaverInhibitor::sessionBusAddress(), openByDesktop)
{
}

void FolderOpener::showNow(const QString &busAddress, const QString &path, const OpenFolder &openFolder)
{
    if (QFileInfo::exists(path) && showByFileManager(busAddress, path))
        return;
    const QString folder = nearestFolder(path);
    if (!openFolder(folder))
        qInfo().noquote() << "[Folder] could not be opened:" << folder;
}
