#include "TmdbProvider.h"

#include "TmdbJson.h"

#include <QRegularExpression>

namespace {

constexpr char kMoviePath[] = "movie/%1";
constexpr char kShowPath[] = "tv/%1";
constexpr char kAppend[] = "append_to_response";

QString appended()
{
    return QStringLiteral("credits,translations");
}

// A text of the user's in an address: everything but letters and digits is encoded.
QString encoded(const QString &text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

// Ids come from requests and from sidecars: only numbers may stand in an address.
bool isId(const QString &id)
{
    static const QRegularExpression digits(QStringLiteral("\\A[0-9]{1,10}\\z"));
    return digits.match(id).hasMatch();
}

QString pathOf(const char *pattern, const QString &id)
{
    return QString::fromLatin1(pattern).arg(id);
}

template<typename Value, typename Read>
Answer<Value> read(const Answer<QJsonObject> &answer, const Read &reader)
{
    if (!answer.isFound())
        return {answer.outcome, {}};
    return {Outcome::Found, reader(answer.value)};
}

// Details without a title are no details.
template<typename Value>
Answer<Value> titled(const Answer<Value> &answer, const QString &title)
{
    if (answer.isFound() && title.isEmpty())
        return {Outcome::Unreadable, {}};
    return answer;
}

struct PictureRow {
    PictureKind kind;
    const char *list; // of the provider's configuration
    int width;
    const char *fallback;
};
constexpr PictureRow kPictures[] = {{PictureKind::Poster, "poster_sizes", 500, "w500"},
                                    {PictureKind::Backdrop, "backdrop_sizes", 1280, "w1280"},
                                    {PictureKind::Still, "still_sizes", 300, "w300"},
                                    {PictureKind::Thumbnail, "poster_sizes", 342, "w342"}};

} // namespace

TmdbProvider::TmdbProvider(MetadataHttp &http)
    : m_http(http)
{
}

bool TmdbProvider::isUsable() const
{
    return m_http.isConfigured();
}

QString TmdbProvider::identityKey() const
{
    return QLatin1String(TmdbJson::Identity);
}

QString TmdbProvider::languageTag(const QString &language)
{
    static const struct {
        const char *language;
        const char *tag;
    } rows[] = {{"en", "en-US"},    {"fr", "fr-FR"}, {"de", "de-DE"},   {"ja", "ja-JP"},
                {"es-es", "es-ES"}, {"zh", "zh-CN"}, {"zh-TW", "zh-TW"}};
    for (const auto &row : rows) {
        if (language == QLatin1String(row.language))
            return QLatin1String(row.tag);
    }
    static const QRegularExpression form(QStringLiteral("\\A[a-z]{2}(-[A-Z]{2})?\\z"));
    return form.match(language).hasMatch() ? language : QStringLiteral("en-US");
}

Answer<QJsonObject> TmdbProvider::ask(const QString &path, const MetadataCall &call, QUrlQuery query)
{
    query.addQueryItem(QStringLiteral("language"), languageTag(call.language));
    return m_http.json(path, query, call);
}

Answer<QVector<ProviderMatch>> TmdbProvider::searchMovie(const QString &name, int year,
                                                         const MetadataCall &call)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("query"), encoded(name));
    query.addQueryItem(QStringLiteral("include_adult"), QStringLiteral("false"));
    if (year > 0)
        query.addQueryItem(QStringLiteral("year"), QString::number(year));
    return read<QVector<ProviderMatch>>(ask(QStringLiteral("search/movie"), call, query),
                                        TmdbJson::movieMatches);
}

Answer<QVector<ProviderMatch>> TmdbProvider::searchTvshow(const QString &name, int year,
                                                          const MetadataCall &call)
{
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("query"), encoded(name));
    if (year > 0)
        query.addQueryItem(QStringLiteral("first_air_date_year"), QString::number(year));
    return read<QVector<ProviderMatch>>(ask(QStringLiteral("search/tv"), call, query), TmdbJson::showMatches);
}

Answer<QString> TmdbProvider::identify(const QMap<QString, QString> &identities, bool isShow,
                                       const MetadataCall &call)
{
    const QString own = identities.value(identityKey());
    if (isId(own))
        return {Outcome::Found, own};
    static const QRegularExpression imdbForm(QStringLiteral("\\Att[0-9]{1,10}\\z"));
    const QString imdb = identities.value(QStringLiteral("imdb"));
    const QString tvdb = identities.value(QStringLiteral("tvdb"));
    QUrlQuery query;
    QString foreign;
    if (imdbForm.match(imdb).hasMatch()) {
        foreign = imdb;
        query.addQueryItem(QStringLiteral("external_source"), QStringLiteral("imdb_id"));
    } else if (isShow && isId(tvdb)) {
        foreign = tvdb;
        query.addQueryItem(QStringLiteral("external_source"), QStringLiteral("tvdb_id"));
    } else {
        return {Outcome::NotFound, {}};
    }
    const auto answer = ask(QStringLiteral("find/") + foreign, call, query);
    if (!answer.isFound())
        return {answer.outcome, {}};
    const QString id = TmdbJson::foundId(answer.value, isShow);
    return {id.isEmpty() ? Outcome::NotFound : Outcome::Found, id};
}

Answer<ProviderMovie> TmdbProvider::movieDetails(const QString &id, const MetadataCall &call)
{
    if (!isId(id))
        return {Outcome::Refused, {}};
    QUrlQuery query;
    query.addQueryItem(QLatin1String(kAppend), appended());
    const auto movie = read<ProviderMovie>(ask(pathOf(kMoviePath, id), call, query), TmdbJson::movie);
    return titled(movie, movie.value.description.title);
}

Answer<Description> TmdbProvider::collectionDetails(const QString &id, const MetadataCall &call)
{
    if (!isId(id))
        return {Outcome::Refused, {}};
    return read<Description>(ask(pathOf("collection/%1", id), call), TmdbJson::collection);
}

Answer<ProviderShow> TmdbProvider::showDetails(const QString &id, const MetadataCall &call)
{
    if (!isId(id))
        return {Outcome::Refused, {}};
    QUrlQuery query;
    query.addQueryItem(QLatin1String(kAppend), appended() + QStringLiteral(",external_ids"));
    const auto show = read<ProviderShow>(ask(pathOf(kShowPath, id), call, query), TmdbJson::show);
    return titled(show, show.value.description.title);
}

Answer<ProviderSeason> TmdbProvider::seasonDetails(const QString &id, int season, const MetadataCall &call)
{
    if (!isId(id) || season < 0)
        return {Outcome::Refused, {}};
    QUrlQuery query;
    query.addQueryItem(QLatin1String(kAppend), appended());
    const QString path = pathOf(kShowPath, id) + QStringLiteral("/season/%1").arg(season);
    return read<ProviderSeason>(ask(path, call, query), TmdbJson::season);
}

Answer<Description> TmdbProvider::episodeDetails(const QString &id, int season, int episode,
                                                 const MetadataCall &call)
{
    if (!isId(id) || season < 0 || episode < 0)
        return {Outcome::Refused, {}};
    QUrlQuery query;
    query.addQueryItem(QLatin1String(kAppend), appended());
    const QString path =
        pathOf(kShowPath, id) + QStringLiteral("/season/%1/episode/%2").arg(season).arg(episode);
    return read<Description>(ask(path, call, query), TmdbJson::episode);
}

Answer<QByteArray> TmdbProvider::picture(const QString &name, PictureKind kind, const MetadataCall &call)
{
    static const QRegularExpression form(QStringLiteral("\\A/[A-Za-z0-9_-]{1,100}\\.[A-Za-z]{3,4}\\z"));
    if (!m_http.hasImages())
        return {Outcome::NotConfigured, {}};
    if (!form.match(name).hasMatch())
        return {Outcome::Refused, {}};
    const auto configuration = m_http.json(QStringLiteral("configuration"), {}, call);
    for (const PictureRow &row : kPictures) {
        if (row.kind != kind)
            continue;
        const QString size = TmdbJson::sizeName(configuration.value, QLatin1String(row.list), row.width,
                                                QLatin1String(row.fallback));
        return m_http.image(size + name, call);
    }
    return {Outcome::Refused, {}};
}
