#include "LibraryRoots.h"

#include "Counters.h"
#include "Database.h"
#include "FileTable.h"
#include "RowTable.h"

#include <QDebug>
#include <QDir>

namespace {

const RowTable<RootFolder> &rootTable()
{
    static const RowTable<RootFolder> table(QStringLiteral("roots"),
                                            {{"id", &RootFolder::pathId},
                                             {"library", &RootFolder::libraryId},
                                             {"path", &RootFolder::path},
                                             {"scraper_type", &RootFolder::scraperType},
                                             {"online", &RootFolder::online}});
    return table;
}

bool forgetFingerprints(Connection &connection, int root)
{
    return connection.prepare(QStringLiteral("DELETE FROM folders WHERE root = ?")).run(root);
}

// What lies below another folder of the library too stays in it; that folder is read anew.
bool handOver(Connection &connection, const FileTable &files, const RootFolder &from)
{
    const std::vector<RootFolder> others = rootTable().list(
        connection, QStringLiteral("WHERE library = ? AND id <> ?"), from.libraryId, from.pathId);
    for (const RootFolder &other : others) {
        if (!FileTable::isBelow(other.path, from.path) && !FileTable::isBelow(from.path, other.path))
            continue;
        if (!files.moveToRoot(connection, from.pathId, other.pathId, other.path)
            || !forgetFingerprints(connection, other.pathId))
            return false;
    }
    return true;
}

} // namespace

LibraryRoots::LibraryRoots(const Database &database)
    : m_database(database)
{
}

int LibraryRoots::videoLibraryId() const
{
    return kVideoLibrary;
}

int LibraryRoots::musicLibraryId() const
{
    return kMusicLibrary;
}

QVector<RootFolder> LibraryRoots::folders(int libraryId) const
{
    const std::vector<RootFolder> rows =
        rootTable().list(m_database.reader(), QStringLiteral("WHERE library = ? ORDER BY id"), libraryId);
    return QVector<RootFolder>(rows.begin(), rows.end());
}

int LibraryRoots::addFolder(int libraryId, const QString &path, const QString &scraperType)
{
    if (path.isEmpty() || (libraryId != kVideoLibrary && libraryId != kMusicLibrary)) {
        qWarning() << "[store] no folder of a library:" << libraryId << path;
        return -1;
    }
    RootFolder root;
    const bool stored = m_database.write(Database::Urgency::User, [&](Connection &connection) {
        const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
        const std::vector<RootFolder> known =
            rootTable().list(connection, QStringLiteral("WHERE library = ? AND path = ?"), libraryId, clean);
        root = known.empty() ? RootFolder() : known.front();
        if (!known.empty() && root.scraperType == scraperType)
            return true;
        if (known.empty())
            root.pathId = static_cast<int>(Counters::take(connection, QStringLiteral("roots")));
        root.libraryId = libraryId;
        root.path = clean;
        root.scraperType = scraperType;
        return root.pathId > 0 && rootTable().write(connection, root)
               && forgetFingerprints(connection, root.pathId);
    });
    return stored ? root.pathId : -1;
}

bool LibraryRoots::removeFolder(int libraryId, int pathId)
{
    return m_database.write(Database::Urgency::User, [&](Connection &connection) {
        const RootFolder root = rootTable().find(connection, pathId);
        if (root.pathId != pathId || root.libraryId != libraryId)
            return false;
        const FileTable &files = libraryId == kMusicLibrary ? FileTable::songs() : FileTable::videos();
        return connection.prepare(QStringLiteral("DELETE FROM roots WHERE id = ?")).run(pathId)
               && handOver(connection, files, root) && forgetFingerprints(connection, pathId)
               && files.hideRoot(connection, pathId, m_database.now());
    });
}

void LibraryRoots::setOnline(int pathId, bool online)
{
    m_database.write(Database::Urgency::User, [&](Connection &connection) {
        return connection.prepare(QStringLiteral("UPDATE roots SET online = ? WHERE id = ?"))
            .run(online ? 1 : 0, pathId);
    });
}
