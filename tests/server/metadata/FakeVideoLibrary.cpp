#include "FakeVideoLibrary.h"

#include <algorithm>

MovieRecord FakeVideoLibrary::movie(int idFile) const
{
    for (const QVector<MovieRecord> &list : lists) {
        for (const MovieRecord &record : list) {
            if (record.idFile == idFile)
                return record;
        }
    }
    return {};
}

bool FakeVideoLibrary::matchMovie(int idFile, const Description &description, const QString &collection)
{
    if (!items.contains(idFile))
        return false;
    matchedMovies.insert(idFile, {description, collection});
    return true;
}

bool FakeVideoLibrary::matchEpisode(int idFile, const Description &show, const Description &told, int number,
                                    int episodeNumber)
{
    if (!items.contains(idFile))
        return false;
    matchedEpisodes.insert(idFile, {show, told, number, episodeNumber});
    return true;
}

bool FakeVideoLibrary::describeMovie(int idFile, const Description &description, const QString &collection)
{
    if (!takesDescriptions)
        return false;
    describedMovies.insert(idFile, {description, collection});
    noLongerWanted(idFile, false);
    return true;
}

bool FakeVideoLibrary::describeShow(int idTvshow, const Description &description,
                                    const QMap<int, Description> &told)
{
    if (!takesDescriptions)
        return false;
    describedShows.insert(idTvshow, {description, told});
    noLongerWanted(idTvshow, true);
    return true;
}

bool FakeVideoLibrary::describeEpisode(int idFile, const Description &description)
{
    describedEpisodes.insert(idFile, description);
    return true;
}

bool FakeVideoLibrary::describeCollection(const QString &collection, const Description &description)
{
    describedCollections.insert(collection, description);
    return true;
}

QVector<IVideoLibrary::Wanted> FakeVideoLibrary::wantingMetadata(bool all, int limit) const
{
    ++wantingCalls;
    return (all ? identified + wanted : wanted).mid(0, limit);
}

void FakeVideoLibrary::metadataTried(int id, bool isShow)
{
    tried.insert({isShow, id});
    noLongerWanted(id, isShow);
}

void FakeVideoLibrary::addItem(int idFile, const QString &title, int year, ScannedVideo::Kind kind)
{
    ScannedVideo item;
    item.path = QStringLiteral("/films/%1.mkv").arg(idFile);
    item.kind = kind;
    item.description.title = title;
    item.description.year = year;
    items.insert(idFile, item);
}

void FakeVideoLibrary::addWanted(int id, bool isShow, const QString &title, int year,
                                 const QMap<QString, QString> &identities)
{
    Wanted entry;
    entry.id = id;
    entry.isShow = isShow;
    entry.known.title = title;
    entry.known.year = year;
    entry.known.identities = identities;
    wanted << entry;
}

void FakeVideoLibrary::noLongerWanted(int id, bool isShow)
{
    const auto end = std::remove_if(wanted.begin(), wanted.end(), [&](const Wanted &entry) {
        return entry.id == id && entry.isShow == isShow;
    });
    wanted.erase(end, wanted.end());
}
