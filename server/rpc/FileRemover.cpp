#include "FileRemover.h"

#include "store/ILibraryRoots.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

bool isBelow(const QString &path, const QString &folder)
{
    if (folder.isEmpty())
        return false;
    const QString prefix = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    return path.startsWith(prefix) && path.size() > prefix.size();
}

const RootFolder *rootOf(const QVector<RootFolder> &roots, const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    for (const RootFolder &root : roots) {
        if (isBelow(clean, QDir::cleanPath(root.path)))
            return &root;
    }
    return nullptr;
}

// The folder that the entry really stands in, with the entry's own name: a link is removed, not what it leads
// to.
QString realEntry(const QString &path)
{
    const QFileInfo info(path);
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? QString() : QDir(folder).filePath(info.fileName());
}

QString removeTarget(const RemovalTarget &target)
{
    const QString path = realEntry(target.path);
    bool done = false;
    if (target.kind == RemovalTarget::Kind::DiscFolder)
        done = QDir(path).removeRecursively();
    else
        done = QFile::remove(path) || !QFileInfo::exists(path);
    if (done)
        qInfo() << "[delete] removed from disk:" << path;
    else
        qInfo() << "[delete] could not be removed from disk:" << path;
    return done ? QString() : QStringLiteral("the file could not be removed: %1").arg(target.path);
}

} // namespace

FileRemover::FileRemover(const ILibraryRoots &roots)
    : m_roots(roots)
{
}

FileRemover::Plan FileRemover::plan(int libraryId, const QStringList &files) const
{
    const QVector<RootFolder> roots = m_roots.folders(libraryId);
    Plan plan;
    for (const QString &file : files) {
        const RootFolder *root = rootOf(roots, file);
        if (!root) {
            plan.objection = QStringLiteral("the file lies in no library folder: %1").arg(file);
            return plan;
        }
        // A folder that is away is no reason to believe that its files are gone.
        const QString realRoot = QFileInfo(root->path).canonicalFilePath();
        if (!root->online || realRoot.isEmpty()) {
            plan.objection = QStringLiteral("the library folder cannot be reached: %1").arg(root->path);
            return plan;
        }
        const RemovalTarget target = DiscTargets::resolve(file);
        if (target.kind == RemovalTarget::Kind::Nothing) {
            qInfo() << "[delete] is no longer on disk:" << file;
            continue;
        }
        // What a link leads to must lie in the library as well; a broken link leads nowhere.
        const QString canonical = QFileInfo(target.path).canonicalFilePath();
        const bool inside = isBelow(realEntry(target.path), realRoot)
                            && (canonical.isEmpty() || isBelow(canonical, realRoot));
        if (target.kind == RemovalTarget::Kind::Refused || !inside) {
            plan.objection = QStringLiteral("the file may not be removed: %1").arg(file);
            return plan;
        }
        plan.targets.append(target);
    }
    return plan;
}

QString FileRemover::remove(int libraryId, const QStringList &files) const
{
    const Plan planned = plan(libraryId, files);
    if (!planned.objection.isEmpty()) {
        qInfo() << "[delete] refused:" << planned.objection;
        return planned.objection;
    }
    for (const RemovalTarget &target : planned.targets) {
        const QString failure = removeTarget(target);
        if (!failure.isEmpty())
            return failure;
    }
    return {};
}
