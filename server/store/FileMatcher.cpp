#include "FileMatcher.h"

#include "Connection.h"
#include "Counters.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

using Place = QPair<QString, int>;

Place placeOf(const FileRow &file)
{
    return {file.path, file.track};
}

using Look = QPair<QPair<qint64, qint64>, Place>;

Look lookOf(const FileRow &file)
{
    return {{file.stamp.size, file.stamp.modifiedMs}, {file.suffix, file.track}};
}

// The rows of the places that one file was moved through, oldest first: each was made after the file was last
// seen in the place before. Empty where two of them were there at once, which are files of their own.
QVector<FileRow> succession(QVector<FileRow> lost)
{
    std::sort(lost.begin(), lost.end(),
              [](const FileRow &first, const FileRow &second) { return first.added < second.added; });
    for (int index = 1; index < lost.size(); ++index) {
        if (lost.at(index).added <= lost.at(index - 1).seen)
            return {};
    }
    return lost;
}

} // namespace

FileMatcher::FileMatcher(Connection &connection, const FileTable &table, qint64 now)
    : m_connection(connection)
    , m_table(table)
    , m_now(now)
{
}

QVector<int> FileMatcher::match(const QVector<ScannedFolder> &folders, const QVector<FileRow> &files,
                                Containers *containers)
{
    if (!hideOthers(folders, files, containers)) {
        m_failed = true;
        return {};
    }
    QVector<int> ids;
    ids.reserve(files.size());
    const bool anyRemoved = FileTable::hasRemoved(m_connection);
    for (const FileRow &file : files) {
        ids << (anyRemoved && FileTable::isRemoved(m_connection, file)
                    ? kRefused
                    : m_table.at(m_connection, file.path, file.track).id);
    }
    matchMoves(files, &ids);
    giveNewIds(&ids);
    return ids;
}

bool FileMatcher::hideOthers(const QVector<ScannedFolder> &folders, const QVector<FileRow> &files,
                             Containers *containers)
{
    QSet<Place> present;
    for (const FileRow &file : files)
        present.insert(placeOf(file));
    for (const ScannedFolder &folder : folders) {
        const QVector<FileRow> known = m_table.inFolder(m_connection, folder.pathId, folder.path);
        for (const FileRow &row : known) {
            if (!row.missing && !present.contains(placeOf(row)))
                m_lost << row;
        }
    }
    return m_table.hide(m_connection, m_lost, m_now, containers);
}

void FileMatcher::matchMoves(const QVector<FileRow> &files, QVector<int> *ids)
{
    QHash<Look, int> comers;
    QSet<int> taken;
    for (int index = 0; index < files.size(); ++index) {
        if (ids->at(index) == 0)
            ++comers[lookOf(files.at(index))];
        else
            taken.insert(ids->at(index));
    }
    for (int index = 0; index < files.size(); ++index) {
        if (ids->at(index) != 0 || comers.value(lookOf(files.at(index))) != 1)
            continue;
        QVector<FileRow> lost = m_table.alike(m_connection, files.at(index), true);
        lost.erase(std::remove_if(lost.begin(), lost.end(),
                                  [&taken](const FileRow &row) { return taken.contains(row.id); }),
                   lost.end());
        const QVector<FileRow> places = succession(lost);
        if (places.isEmpty())
            continue;
        (*ids)[index] = places.first().id;
        for (const FileRow &place : places) {
            const int id = place.id;
            taken.insert(id);
            if (id != places.first().id)
                m_earlier << Move{places.first().id, id};
            m_lost.erase(std::remove_if(m_lost.begin(), m_lost.end(),
                                        [id](const FileRow &row) { return row.id == id; }),
                         m_lost.end());
        }
    }
}

void FileMatcher::giveNewIds(QVector<int> *ids)
{
    const auto count = static_cast<int>(std::count(ids->begin(), ids->end(), 0));
    if (count == 0)
        return;
    int next = static_cast<int>(Counters::take(m_connection, m_table.name(), count));
    if (next == 0) {
        m_failed = true;
        return;
    }
    m_firstNew = next;
    for (int &id : *ids) {
        if (id == 0)
            id = next++;
    }
}

QVector<FileMatcher::Move> FileMatcher::lateMoves(const QVector<FileRow> &lost) const
{
    QVector<Move> moves;
    QSet<int> done;
    for (const FileRow &row : lost) {
        if (done.contains(row.id))
            continue;
        const QVector<FileRow> places = succession(m_table.alike(m_connection, row, true));
        for (const FileRow &place : places)
            done.insert(place.id);
        if (places.isEmpty())
            continue;
        // Only a row that was made after the file was last seen in its old place: another is a copy of its
        // own.
        QVector<FileRow> comers = m_table.alike(m_connection, row, false);
        comers.erase(std::remove_if(comers.begin(), comers.end(),
                                    [&](const FileRow &comer) { return comer.added <= places.last().seen; }),
                     comers.end());
        if (comers.size() != 1)
            continue;
        const int id = places.first().id;
        for (int index = 1; index < places.size(); ++index)
            moves << Move{id, places.at(index).id};
        moves << Move{id, comers.first().id};
    }
    return moves;
}
