#include "FileMatcher.h"

#include "Connection.h"
#include "Counters.h"
#include "MovedFiles.h"
#include "RemovedFiles.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace {

using Place = QPair<QString, int>;
using Look = FileMatcher::Look;

Place placeOf(const FileRow &file)
{
    return {file.path, file.track};
}

Look lookOf(const FileRow &file)
{
    return {{file.stamp.size, file.stamp.modifiedMs}, {file.suffix, file.track}};
}

// One more than are told apart says that there are too many.
constexpr int kEnough = MovedFiles::kMost + 1;

// What is known of a song stands in its file; what is known of a film is mostly read from names.
MovedFiles::Witness witnessOf(const FileTable &table)
{
    return table.isVideos() ? MovedFiles::Witness::Name : MovedFiles::Witness::File;
}

} // namespace

FileMatcher::FileMatcher(Connection &connection, const FileTable &table, qint64 now)
    : m_connection(connection)
    , m_table(table)
    , m_now(now)
{
}

QVector<int> FileMatcher::match(const QVector<ScannedFolder> &folders, const QVector<FileRow> &files,
                                const ContentOf &contentOf, Containers *containers)
{
    if (!hideOthers(folders, files, containers)) {
        m_failed = true;
        return {};
    }
    QVector<int> ids;
    ids.reserve(files.size());
    const bool anyRemoved = RemovedFiles::any(m_connection);
    if (anyRemoved && !RemovedFiles::forgetUnseen(m_connection, m_table, folders, files)) {
        m_failed = true;
        return {};
    }
    for (const FileRow &file : files) {
        ids << (anyRemoved && RemovedFiles::holds(m_connection, file)
                    ? kRefused
                    : m_table.idAt(m_connection, file.path, file.track));
    }
    if (m_table.mayMissAny(m_connection))
        matchMoves(files, contentOf, &ids);
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

void FileMatcher::matchMoves(const QVector<FileRow> &files, const ContentOf &contentOf, QVector<int> *ids)
{
    QHash<Look, QVector<int>> comers;
    QSet<int> known;
    for (int index = 0; index < files.size(); ++index) {
        if (ids->at(index) == 0)
            comers[lookOf(files.at(index))] << index;
        else
            known.insert(ids->at(index));
    }
    const MovedFiles moved(witnessOf(m_table));
    for (int index = 0; index < files.size(); ++index) {
        if (ids->at(index) != 0)
            continue;
        // All files of a look are matched with the first of them.
        const QVector<int> alike = comers.take(lookOf(files.at(index)));
        if (alike.isEmpty() || alike.size() > MovedFiles::kMost)
            continue;
        QVector<FileRow> lost = m_table.alike(m_connection, files.at(index), true, kEnough);
        lost.erase(std::remove_if(lost.begin(), lost.end(),
                                  [&known](const FileRow &row) { return known.contains(row.id); }),
                   lost.end());
        if (lost.isEmpty())
            continue;
        QVector<FileRow> come;
        for (const int comer : alike) {
            come << files.at(comer);
            come.last().added = std::numeric_limits<qint64>::max();
            come.last().content = contentOf(comer);
        }
        const bool isShared = lost.size() > 1 || come.size() > 1
                              || !m_table.alike(m_connection, files.at(index), false, 1).isEmpty();
        if (isShared) {
            m_table.addContent(m_connection, &lost);
            m_told.insert(lookOf(files.at(index)));
        }
        const QVector<MovedFiles::Found> found =
            moved.find(lost, come, isShared ? MovedFiles::Look::Shared : MovedFiles::Look::Rare);
        for (const MovedFiles::Found &file : found) {
            (*ids)[alike.at(file.comer)] = file.places.first().id;
            take(file.places);
        }
    }
}

void FileMatcher::take(const QVector<FileRow> &places)
{
    for (const FileRow &place : places) {
        const int id = place.id;
        if (id != places.first().id)
            m_earlier << Move{places.first().id, id};
        m_lost.erase(
            std::remove_if(m_lost.begin(), m_lost.end(), [id](const FileRow &row) { return row.id == id; }),
            m_lost.end());
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
    QSet<Look> done;
    const MovedFiles moved(witnessOf(m_table));
    for (const FileRow &row : lost) {
        if (done.contains(lookOf(row)))
            continue;
        done.insert(lookOf(row));
        QVector<FileRow> comers = m_table.alike(m_connection, row, false, kEnough);
        if (comers.isEmpty())
            continue;
        QVector<FileRow> gone = m_table.alike(m_connection, row, true, kEnough);
        if (gone.size() > 1 || comers.size() > 1) {
            m_table.addContent(m_connection, &gone);
            m_table.addContent(m_connection, &comers);
        }
        const QVector<MovedFiles::Found> found = moved.find(
            gone, comers, m_told.contains(lookOf(row)) ? MovedFiles::Look::Told : MovedFiles::Look::Rare);
        for (const MovedFiles::Found &file : found) {
            const int id = file.places.first().id;
            for (int index = 1; index < file.places.size(); ++index)
                moves << Move{id, file.places.at(index).id};
            moves << Move{id, comers.at(file.comer).id};
        }
    }
    return moves;
}
