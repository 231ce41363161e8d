#include "MovedFiles.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

enum class By { Look, Name, Content };

QString keyOf(const FileRow &row, By what)
{
    switch (what) {
    case By::Name:
        return row.name;
    case By::Content:
        return row.content;
    case By::Look:
        break;
    }
    return {};
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

QVector<MovedFiles::Found> MovedFiles::find(const QVector<FileRow> &lost, const QVector<FileRow> &comers,
                                            Look look) const
{
    QVector<Found> found;
    if (lost.size() > kMost || comers.size() > kMost)
        return found;
    QSet<int> doneIds;
    QSet<int> doneComers;
    for (const By what : {By::Look, By::Name, By::Content}) {
        if (what == By::Look && look == Look::Told)
            continue;
        QHash<QString, Group> groups;
        for (const FileRow &row : lost) {
            if (!doneIds.contains(row.id))
                groups[keyOf(row, what)].lost << row;
        }
        for (int index = 0; index < comers.size(); ++index) {
            if (!doneComers.contains(index))
                groups[keyOf(comers.at(index), what)].comers << index;
        }
        // What is not known says nothing.
        if (what != By::Look)
            groups.remove({});
        for (const Group &group : qAsConst(groups)) {
            const QVector<FileRow> places = succession(group.lost);
            if (places.isEmpty())
                continue;
            QVector<int> later;
            std::copy_if(group.comers.begin(), group.comers.end(), std::back_inserter(later),
                         [&](int index) { return comers.at(index).added > places.last().seen; });
            if (later.size() != 1)
                continue;
            // A file may have got other tags on its way; among several of its look that would be a guess.
            const bool needsWitness =
                what != By::Look || look == Look::Shared || places.size() > 1 || comers.size() > 1;
            if (needsWitness && !isSame(places, comers.at(later.first())))
                continue;
            found << Found{places, later.first()};
            doneComers << later.first();
            for (const FileRow &place : places)
                doneIds << place.id;
        }
    }
    return found;
}

bool MovedFiles::isSame(const QVector<FileRow> &places, const FileRow &comer) const
{
    if (m_witness == Witness::Name || comer.content.isEmpty())
        return true;
    return std::all_of(places.begin(), places.end(), [&comer](const FileRow &place) {
        return place.content.isEmpty() || place.content == comer.content;
    });
}
