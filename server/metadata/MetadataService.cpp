#include "MetadataService.h"

#include "MediaId.h"

#include <QDebug>
#include <QRegularExpression>

#include <exception>

namespace {

constexpr qint64 kLongestCallMs = 10000;
// Pictures of proposals are a comfort: they take what the search left of this.
constexpr qint64 kPicturesUntilMs = 7000;
constexpr int kPicturedProposals = 10;
constexpr int kHighestPort = 65535;
constexpr int kEarliestYear = 1870;
constexpr int kLatestYear = 2200;

int yearOf(const QString &text)
{
    const int year = text.trimmed().toInt();
    return year >= kEarliestYear && year <= kLatestYear ? year : 0;
}

} // namespace

MetadataService::MetadataService(const ProviderParts &parts, IMusicLibrary &music, MetadataHttp &http,
                                 SongReader readSong)
    : m_parts(parts)
    , m_music(music)
    , m_http(http)
    , m_readSong(std::move(readSong))
    , m_local(parts.videos, music)
{
}

QVector<MatchRecord> MetadataService::searchMovie(const QString &name, const QString &year)
{
    const QString title = name.trimmed();
    const QVector<MatchRecord> found = search(&IMetadataProvider::searchMovie, title, yearOf(year));
    const QVector<MatchRecord> typed = LocalMetadata::typed(title, yearOf(year));
    return found.isEmpty() ? typed + m_local.films(title, yearOf(year)) : found + typed;
}

QVector<MatchRecord> MetadataService::searchTvshow(const QString &name, const QString &year)
{
    const QString title = name.trimmed();
    const QVector<MatchRecord> found = search(&IMetadataProvider::searchTvshow, title, yearOf(year));
    const QVector<MatchRecord> typed = LocalMetadata::typed(title, yearOf(year));
    return found.isEmpty() ? typed + m_local.shows(title, yearOf(year)) : found + typed;
}

QVector<SongMatchRecord> MetadataService::searchSong(const QString &title, const QString &artist)
{
    return m_local.songs(title.trimmed(), artist.trimmed());
}

QVector<MatchRecord> MetadataService::search(Search operation, const QString &name, int year)
{
    QVector<MatchRecord> proposals;
    if (name.isEmpty() || !m_parts.provider.isUsable())
        return proposals;
    MetadataCall call = newCall();
    auto answer = (m_parts.provider.*operation)(name, year, call);
    // A year that the user remembers wrongly must not hide the film.
    if (year > 0 && answer.isFound() && answer.value.isEmpty())
        answer = (m_parts.provider.*operation)(name, 0, call);
    call.deadlineMs -= kLongestCallMs - kPicturesUntilMs;
    for (const ProviderMatch &match : std::as_const(answer.value))
        proposals << proposalOf(match, proposals.size() < kPicturedProposals, call);
    return proposals;
}

MatchRecord MetadataService::proposalOf(const ProviderMatch &match, bool withPicture,
                                        const MetadataCall &call)
{
    MatchRecord record;
    record.title = match.title;
    record.releaseDate = match.releaseDate;
    record.strMediaId = match.id;
    if (withPicture && m_parts.clock.steadyMs() < call.deadlineMs)
        record.poster = m_parts.pictures.fetch(match.poster, PictureKind::Thumbnail, call);
    return record;
}

bool MetadataService::toMovie(int idFile, const QString &mediaId)
{
    const MediaId id = MediaId::parse(mediaId);
    if (id.kind == MediaId::Kind::Provider)
        return toProviderMovie(idFile, id.provider);
    const std::optional<LocalMetadata::Film> film = m_local.film(idFile, id);
    if (!film) {
        qWarning().noquote() << "[metadata] item" << idFile << "can't become the film" << mediaId.left(80);
        return false;
    }
    return m_parts.videos.matchMovie(idFile, film->description, film->collection);
}

bool MetadataService::toProviderMovie(int idFile, const QString &id)
{
    const MetadataCall call = newCall();
    Answer<ProviderMovie> movie = m_parts.provider.movieDetails(id, call);
    if (!movie.isFound()) {
        qWarning().noquote() << "[metadata] item" << idFile << "can't become the film" << id << '-'
                             << outcomeText(movie.outcome);
        return false;
    }
    m_parts.pictures.localise(movie.value.description, PictureKind::Poster, {}, call);
    if (!m_parts.videos.matchMovie(idFile, movie.value.description, movie.value.collection))
        return false;
    m_parts.describeCollection(movie.value, call);
    return true;
}

bool MetadataService::toEpisode(int idFile, const QString &mediaId, int season, int episode)
{
    const MediaId id = MediaId::parse(mediaId);
    if (season < 0 || episode < 0) {
        qWarning() << "[metadata] no episode has these numbers:" << season << episode;
        return false;
    }
    if (id.kind == MediaId::Kind::Provider)
        return toProviderEpisode(idFile, id.provider, season, episode);
    const std::optional<Description> show = m_local.show(id);
    if (!show) {
        qWarning().noquote() << "[metadata] item" << idFile << "can't become an episode of"
                             << mediaId.left(80);
        return false;
    }
    return m_parts.videos.matchEpisode(idFile, *show, {}, season, episode);
}

bool MetadataService::toProviderEpisode(int idFile, const QString &id, int season, int episode)
{
    const MetadataCall call = newCall();
    Answer<ProviderShow> show = m_parts.provider.showDetails(id, call);
    if (!show.isFound()) {
        qWarning().noquote() << "[metadata] item" << idFile << "can't become an episode of" << id << '-'
                             << outcomeText(show.outcome);
        return false;
    }
    // An episode that the provider doesn't have is still one: the user says so.
    Answer<Description> told = m_parts.provider.episodeDetails(id, season, episode, call);
    m_parts.pictures.localise(show.value.description, PictureKind::Poster, {}, call);
    m_parts.pictures.localise(told.value, PictureKind::Still, {}, call);
    return m_parts.videos.matchEpisode(idFile, show.value.description, told.value, season, episode);
}

bool MetadataService::fixMusic(int idFile)
{
    if (!m_readSong || m_music.song(idFile).idFile == 0)
        return false;
    try {
        // First what can fail: a file that can't be read leaves the user's corrections in place.
        if (!m_readSong(idFile))
            return false;
    } catch (const std::exception &error) {
        qWarning() << "[metadata] the tags of song" << idFile << "can't be read:" << error.what();
        return false;
    }
    return m_music.restoreSong(idFile);
}

void MetadataService::setLanguage(const QString &language)
{
    std::lock_guard lock(m_languageMutex);
    if (!language.isEmpty())
        m_language = language;
}

QString MetadataService::language() const
{
    std::lock_guard lock(m_languageMutex);
    return m_language;
}

void MetadataService::setProxy(const QString &host, const QString &port, const QString &user,
                               const QString &password)
{
    // Nothing but a name or an address: a scheme in front would change the kind of proxy.
    static const QRegularExpression form(QStringLiteral("\\A(?:[A-Za-z0-9._-]+|\\[[0-9A-Fa-f:.]+\\])\\z"));
    bool isNumber = false;
    const int number = port.trimmed().toInt(&isNumber);
    if (!form.match(host.trimmed()).hasMatch() || !isNumber || number < 1 || number > kHighestPort) {
        qWarning() << "[metadata] no proxy:" << host << port;
        cancelProxy();
        return;
    }
    m_http.setProxy({host.trimmed(), number, user, password});
}

void MetadataService::cancelProxy()
{
    m_http.setProxy({});
}

void MetadataService::shutDown()
{
    m_stop.raise();
}

MetadataCall MetadataService::newCall()
{
    return {language(), m_stop, m_parts.clock.steadyMs() + kLongestCallMs};
}
