#include "MetadataRound.h"

#include "TitleMatch.h"

#include <QDebug>
#include <QFile>
#include <QSaveFile>

namespace {

constexpr int kStep = 50;
constexpr int kAll = 1000000;
constexpr qint64 kLongestLanguage = 64;

} // namespace

MetadataRound::MetadataRound(const ProviderParts &parts, std::function<QString()> language,
                             const QString &languageFile)
    : m_parts(parts)
    , m_language(std::move(language))
    , m_languageFile(languageFile)
{
}

void MetadataRound::cancel()
{
    m_stop.raise();
}

void MetadataRound::resume()
{
    m_stop.lower();
}

bool MetadataRound::run()
{
    if (!m_parts.provider.isUsable() || m_stop.isRaised())
        return false;
    m_collections.clear();
    const MetadataCall call{m_language(), m_stop};
    const QString noted = notedLanguage();
    Count count;
    // Before the first whole round there is nothing in another language.
    const bool isOtherLanguage = !noted.isEmpty() && noted != call.language;
    const bool isWhole = (!isOtherLanguage || describeAnew(call, count)) && describeWanted(call, count);
    if (isWhole && noted != call.language)
        noteLanguage(call.language);
    if (count.described > 0 || count.withoutMatch > 0) {
        qInfo().noquote() << QStringLiteral("[metadata] %1 described, %2 without a match, language %3")
                                 .arg(count.described)
                                 .arg(count.withoutMatch)
                                 .arg(call.language);
    }
    return count.described > 0;
}

bool MetadataRound::describeAnew(const MetadataCall &call, Count &count)
{
    const QVector<Wanted> all = m_parts.videos.wantingMetadata(true, kAll);
    for (const Wanted &wanted : all) {
        if (!wanted.known.identities.isEmpty() && !take(wanted, call, count))
            return false;
    }
    return true;
}

bool MetadataRound::describeWanted(const MetadataCall &call, Count &count)
{
    QSet<QPair<bool, int>> seen;
    for (;;) {
        const QVector<Wanted> some = m_parts.videos.wantingMetadata(false, kStep);
        const int before = seen.size();
        for (const Wanted &wanted : some) {
            const QPair<bool, int> key(wanted.isShow, wanted.id);
            if (seen.contains(key))
                continue;
            seen.insert(key);
            if (!take(wanted, call, count))
                return false;
        }
        // Nothing new: what is left there would be asked for without end.
        if (seen.size() == before)
            return true;
    }
}

bool MetadataRound::take(const Wanted &wanted, const MetadataCall &call, Count &count)
{
    if (m_stop.isRaised())
        return false;
    const Step step = describe(wanted, call);
    if (step == Step::Ended)
        return false;
    if (step == Step::Described) {
        ++count.described;
    } else {
        ++count.withoutMatch;
        m_parts.videos.metadataTried(wanted.id, wanted.isShow);
    }
    return true;
}

MetadataRound::Step MetadataRound::describe(const Wanted &wanted, const MetadataCall &call)
{
    if (!wanted.isShow && m_parts.videos.scanned(wanted.id).kind == ScannedVideo::Kind::Adult)
        return Step::Nothing;
    const Answer<QString> id = identify(wanted, call);
    if (!id.isFound())
        return isPassing(id.outcome) ? Step::Ended : Step::Nothing;
    return wanted.isShow ? describeShow(wanted, id.value, call) : describeMovie(wanted, id.value, call);
}

Answer<QString> MetadataRound::identify(const Wanted &wanted, const MetadataCall &call)
{
    IMetadataProvider &provider = m_parts.provider;
    const Description &known = wanted.known;
    const Answer<QString> id = provider.identify(known.identities, wanted.isShow, call);
    if (id.outcome != Outcome::NotFound && id.outcome != Outcome::Unreadable)
        return id;
    if (known.title.trimmed().isEmpty())
        return {Outcome::NotFound, {}};
    // Searches with a year know that year alone; its neighbours come with the search without one.
    QVector<int> years{known.year};
    if (known.year > 0)
        years << 0;
    for (const int year : std::as_const(years)) {
        const auto matches = wanted.isShow ? provider.searchTvshow(known.title, year, call)
                                           : provider.searchMovie(known.title, year, call);
        if (!matches.isFound())
            return {matches.outcome, {}};
        if (const auto match = TitleMatch::pick(matches.value, known))
            return {Outcome::Found, match->id};
    }
    return {Outcome::NotFound, {}};
}

MetadataRound::Step MetadataRound::describeMovie(const Wanted &wanted, const QString &id,
                                                 const MetadataCall &call)
{
    Answer<ProviderMovie> movie = m_parts.provider.movieDetails(id, call);
    if (!movie.isFound())
        return isPassing(movie.outcome) ? Step::Ended : Step::Nothing;
    m_parts.pictures.localise(movie.value.description, PictureKind::Poster, wanted.known, call);
    // A picture that was cut short by the end of the server would be missing for good.
    if (m_stop.isRaised())
        return Step::Ended;
    if (!m_parts.videos.describeMovie(wanted.id, movie.value.description, movie.value.collection))
        return Step::Nothing;
    if (!m_collections.contains(movie.value.collectionId)) {
        m_collections.insert(movie.value.collectionId);
        m_parts.describeCollection(movie.value, call);
    }
    return Step::Described;
}

MetadataRound::Step MetadataRound::describeShow(const Wanted &wanted, const QString &id,
                                                const MetadataCall &call)
{
    Answer<ProviderShow> show = m_parts.provider.showDetails(id, call);
    if (!show.isFound())
        return isPassing(show.outcome) ? Step::Ended : Step::Nothing;
    const auto told = seasonsOf(wanted, id, call);
    if (!told.isFound())
        return Step::Ended;
    m_parts.pictures.localise(show.value.description, PictureKind::Poster, wanted.known, call);
    QMap<int, Description> seasons;
    for (auto season = told.value.cbegin(); season != told.value.cend(); ++season) {
        Description description = season->description;
        m_parts.pictures.localise(description, PictureKind::Poster, {}, call);
        seasons.insert(season.key(), description);
    }
    // The show last: as long as it is not described, an ended round is taken up again here.
    describeEpisodes(wanted.id, told.value, call);
    if (m_stop.isRaised())
        return Step::Ended;
    const bool isStored = m_parts.videos.describeShow(wanted.id, show.value.description, seasons);
    return isStored ? Step::Described : Step::Nothing;
}

Answer<QMap<int, ProviderSeason>> MetadataRound::seasonsOf(const Wanted &wanted, const QString &id,
                                                           const MetadataCall &call)
{
    Answer<QMap<int, ProviderSeason>> seasons{Outcome::Found, {}};
    const QVector<SeasonRecord> held = m_parts.videos.seasons(wanted.id);
    for (const SeasonRecord &record : held) {
        const Answer<ProviderSeason> season = m_parts.provider.seasonDetails(id, record.iSeason, call);
        if (season.isFound())
            seasons.value.insert(record.iSeason, season.value);
        else if (isPassing(season.outcome))
            return {season.outcome, {}};
    }
    return seasons;
}

void MetadataRound::describeEpisodes(int idTvshow, const QMap<int, ProviderSeason> &seasons,
                                     const MetadataCall &call)
{
    for (auto season = seasons.cbegin(); season != seasons.cend(); ++season) {
        const QVector<EpisodeRecord> held = m_parts.videos.episodes(idTvshow, season.key());
        for (const EpisodeRecord &record : held) {
            if (m_stop.isRaised())
                return;
            const auto told = season->episodes.constFind(record.iEpisode);
            if (told == season->episodes.cend())
                continue;
            Description known;
            known.poster = record.poster;
            Description description = *told;
            m_parts.pictures.localise(description, PictureKind::Still, known, call);
            m_parts.videos.describeEpisode(record.idFile, description);
        }
    }
}

QString MetadataRound::notedLanguage() const
{
    QFile file(m_languageFile);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(kLongestLanguage)).trimmed()
                                          : QString();
}

void MetadataRound::noteLanguage(const QString &language)
{
    QSaveFile file(m_languageFile);
    const QByteArray text = language.toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        qWarning().noquote() << "[metadata] the language can't be noted:" << file.errorString();
}
