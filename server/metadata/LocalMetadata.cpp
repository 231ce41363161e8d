#include "LocalMetadata.h"

#include "TitleMatch.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int kMostProposals = 20;
constexpr int kMostSongs = 100;
constexpr int kShowsAtATime = 500;

QString yearText(int year)
{
    return year > 0 ? QString::number(year) : QString();
}

ListRequest patternRequest(const QString &pattern, int most)
{
    ListRequest request;
    request.pattern = pattern;
    request.end = most;
    return request;
}

template<typename Record>
MatchRecord proposalOf(const Record &record, const QString &id)
{
    MatchRecord match;
    match.title = record.title;
    match.releaseDate = yearText(record.year);
    match.poster = record.poster;
    match.backdrop = record.backdrop;
    match.strMediaId = id;
    return match;
}

void putYearFirst(QVector<MatchRecord> &matches, int year)
{
    if (year > 0) {
        std::stable_partition(matches.begin(), matches.end(),
                              [&](const MatchRecord &match) { return match.releaseDate == yearText(year); });
    }
}

void fill(QString &field, const QString &other)
{
    if (field.isEmpty())
        field = other;
}

// What the lists show adds to what the scan knows.
template<typename Record>
void fillFrom(Description &description, const Record &record)
{
    fill(description.title, record.title);
    fill(description.rating, record.rating);
    fill(description.director, record.director);
    fill(description.cast, record.cast);
    fill(description.genre, record.genre);
    fill(description.overview, record.overview);
    fill(description.poster, record.poster);
    fill(description.backdrop, record.backdrop);
    if (description.year == 0)
        description.year = record.year;
}

} // namespace

LocalMetadata::LocalMetadata(const IVideoLibrary &videos, const IMusicLibrary &music)
    : m_videos(videos)
    , m_music(music)
{
}

QVector<MatchRecord> LocalMetadata::typed(const QString &name, int year)
{
    if (name.isEmpty())
        return {};
    MatchRecord match;
    match.title = name;
    match.releaseDate = yearText(year);
    match.strMediaId = MediaId::ofName(name, year);
    return {match};
}

QVector<MatchRecord> LocalMetadata::films(const QString &name, int year) const
{
    QVector<MatchRecord> matches;
    if (name.isEmpty())
        return matches;
    for (const Role role : {Role::Movies, Role::Videos}) {
        const Page<MovieRecord> page = m_videos.movies(role, patternRequest(name, kMostProposals));
        for (const MovieRecord &record : page.rows) {
            matches << proposalOf(record, MediaId::ofItem(record.idFile));
            matches.last().runtime = record.runtime;
        }
    }
    putYearFirst(matches, year);
    return matches;
}

QVector<MatchRecord> LocalMetadata::shows(const QString &name, int year) const
{
    QVector<MatchRecord> matches;
    if (name.isEmpty())
        return matches;
    const Page<ShowRecord> page = m_videos.shows(patternRequest(name, kMostProposals));
    for (const ShowRecord &record : page.rows)
        matches << proposalOf(record, MediaId::ofShow(record.idTvshow));
    putYearFirst(matches, year);
    return matches;
}

QVector<SongMatchRecord> LocalMetadata::songs(const QString &title, const QString &artist) const
{
    static const QRegularExpression parting(QStringLiteral("\\s*[;/]\\s*|,\\s+"));
    QVector<SongMatchRecord> matches;
    if (title.isEmpty() && artist.isEmpty())
        return matches;
    const Page<SongRecord> page = title.isEmpty()
                                      ? m_music.artistSongs(artist, patternRequest({}, kMostSongs))
                                      : m_music.songs(patternRequest(title, kMostSongs));
    const QString wanted = artist.isEmpty() ? QString() : TitleMatch::folded(artist);
    for (const SongRecord &record : page.rows) {
        if (!TitleMatch::folded(record.artist).contains(wanted))
            continue;
        SongMatchRecord match;
        match.title = record.title;
        match.albumName = record.album;
        match.duration = record.runtime;
        match.year = record.year;
        match.genres = record.genre.split(parting, Qt::SkipEmptyParts);
        const QStringList artists = record.artist.split(QLatin1Char(';'), Qt::SkipEmptyParts);
        for (const QString &name : artists)
            match.artists << SongMatchRecord::Artist{name.trimmed(),
                                                     static_cast<int>(match.artists.size()) + 1};
        matches << match;
    }
    return matches;
}

std::optional<LocalMetadata::Film> LocalMetadata::film(int idFile, const MediaId &id) const
{
    const ScannedVideo own = m_videos.scanned(idFile);
    if (own.path.isEmpty())
        return std::nullopt;
    Film film;
    if (id.kind == MediaId::Kind::Name) {
        // Whatever else was told belongs to another title; the length and the artwork beside the file are the
        // file's.
        film.description.title = id.title;
        film.description.year = id.year;
        film.description.runtimeMinutes = own.description.runtimeMinutes;
        if (QDir::isAbsolutePath(own.description.poster))
            film.description.poster = own.description.poster;
        if (QDir::isAbsolutePath(own.description.backdrop))
            film.description.backdrop = own.description.backdrop;
        return film;
    }
    const MovieRecord record = m_videos.movie(id.record);
    if (id.kind != MediaId::Kind::Item || record.idFile == 0)
        return std::nullopt;
    const ScannedVideo other = m_videos.scanned(id.record);
    film.description = other.description;
    film.collection = other.collection;
    fillFrom(film.description, record);
    return film;
}

std::optional<Description> LocalMetadata::show(const MediaId &id) const
{
    Description description;
    if (id.kind == MediaId::Kind::Name) {
        description.title = id.title;
        description.year = id.year;
        return description;
    }
    if (id.kind != MediaId::Kind::Show)
        return std::nullopt;
    const std::optional<ShowRecord> record = showRecord(id.record);
    if (!record)
        return std::nullopt;
    fillFrom(description, *record);
    return description;
}

std::optional<ShowRecord> LocalMetadata::showRecord(int idTvshow) const
{
    ListRequest request;
    for (;;) {
        request.end = request.start + kShowsAtATime;
        const Page<ShowRecord> page = m_videos.shows(request);
        const auto found = std::find_if(page.rows.begin(), page.rows.end(), [&](const ShowRecord &record) {
            return record.idTvshow == idTvshow;
        });
        if (found != page.rows.end())
            return *found;
        if (page.rows.isEmpty() || request.end >= page.total)
            return std::nullopt;
        request.start = request.end;
    }
}
