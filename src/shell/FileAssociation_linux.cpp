#include "FileAssociation.h"

#include "DesktopEntries_linux.h"
#include "MimeAppsList_linux.h"

#include "core/CommonInfoManager.h"

#include <QDebug>

#include <mutex>

namespace {

// The name under which the list keeps the types of discs; no extension has a point.
constexpr char kDiscs[] = "x.discs";

std::mutex &oneAtATime()
{
    static std::mutex mutex;
    return mutex;
}

bool told(const char *what, bool done)
{
    qInfo().noquote() << "[FileAss]" << what << (done ? "success" : "fail");
    return done;
}

} // namespace

bool FileAssociation::RegisterApplication()
{
    std::lock_guard<std::mutex> lock(oneAtATime());
    return told("register application", DesktopEntries::writeProgram());
}

bool FileAssociation::UnregisterApplication()
{
    std::lock_guard<std::mutex> lock(oneAtATime());
    return told("unregister application", DesktopEntries::removeProgram());
}

bool FileAssociation::RegisterAutoplay(bool enable)
{
    std::lock_guard<std::mutex> lock(oneAtATime());
    const QString entry = DesktopEntries::autoplayEntry();
    MimeAppsList list;
    bool done = list.load() && (!enable || DesktopEntries::writeAutoplay());
    if (done && enable)
        list.take(QLatin1String(kDiscs), DesktopEntries::discTypes(), entry);
    else if (done)
        list.giveBack(QLatin1String(kDiscs), entry);
    done = done && list.save();
    // The list no longer names the entry when it goes.
    if (!enable)
        done = done && DesktopEntries::removeAutoplay();
    return told(enable ? "autoplay on" : "autoplay off", done);
}

QStringList FileAssociation::associatedExtensions()
{
    std::lock_guard<std::mutex> lock(oneAtATime());
    MimeAppsList list;
    QStringList found;
    if (!list.load())
        return found;
    const QStringList extensions = CommonInfoManager::playableExtensions();
    for (const QString &extension : extensions) {
        if (list.isTaken(extension, DesktopEntries::programEntry()))
            found << extension;
    }
    return found;
}

bool FileAssociation::changeKnown(const QStringList &associate, const QStringList &restore)
{
    std::lock_guard<std::mutex> lock(oneAtATime());
    const QString entry = DesktopEntries::programEntry();
    MimeAppsList list;
    // The list must not name an entry that is not there.
    if (!list.load() || (!associate.isEmpty() && !DesktopEntries::writeProgram()))
        return false;
    for (const QString &extension : restore)
        list.giveBack(extension, entry);
    int taken = 0;
    for (const QString &extension : associate) {
        const QStringList types = DesktopEntries::typesOf(extension);
        if (types.isEmpty()) {
            qInfo().noquote() << "[FileAss] the desktop has no type of media for" << extension;
            continue;
        }
        list.take(extension, types, entry);
        ++taken;
    }
    return list.save() && (associate.isEmpty() || taken > 0);
}

bool FileAssociation::isMarked(const QString &extension)
{
    std::lock_guard<std::mutex> lock(oneAtATime());
    MimeAppsList list;
    return list.load() && list.isTaken(extension, DesktopEntries::programEntry());
}
