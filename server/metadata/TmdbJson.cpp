#include "TmdbJson.h"

#include <QJsonArray>

#include <algorithm>
#include <limits>

namespace {

constexpr int kMostNames = 15;
constexpr int kLongestText = 20000;
constexpr int kYearDigits = 4;
constexpr char kSeparator[] = ", ";

// Films and shows are told alike under different keys.
struct Keys {
    const char *title;
    const char *originalTitle;
    const char *date;
};
constexpr Keys kMovieKeys{"title", "original_title", "release_date"};
constexpr Keys kShowKeys{"name", "original_name", "first_air_date"};
constexpr Keys kSeasonKeys{"name", "original_name", "air_date"};

QString text(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1String(key)).toString().trimmed().left(kLongestText);
}

// Ids are whole numbers; anything else is none.
QString idOf(const QJsonObject &object, const char *key = "id")
{
    const double number = object.value(QLatin1String(key)).toDouble(0);
    if (!(number >= 1 && number <= std::numeric_limits<int>::max()))
        return {};
    return QString::number(static_cast<int>(number));
}

int count(const QJsonObject &object, const char *key)
{
    const double number = object.value(QLatin1String(key)).toDouble(0);
    return number >= 0 && number <= std::numeric_limits<int>::max() ? static_cast<int>(number) : 0;
}

QString dateOf(const QJsonObject &object, const char *key)
{
    const QDate date = QDate::fromString(text(object, key), Qt::ISODate);
    return date.isValid() ? date.toString(Qt::ISODate) : QString();
}

int yearOf(const QString &isoDate)
{
    return isoDate.left(kYearDigits).toInt();
}

QStringList namesOf(const QJsonValue &list, const char *job = nullptr)
{
    QStringList names;
    const QJsonArray array = list.toArray();
    for (const QJsonValue &value : array) {
        const QJsonObject person = value.toObject();
        const QString name = text(person, "name");
        if (name.isEmpty() || names.contains(name)
            || (job != nullptr && text(person, "job") != QLatin1String(job)))
            continue;
        names << name;
        if (names.size() == kMostNames)
            break;
    }
    return names;
}

QString joined(const QStringList &names)
{
    return names.join(QLatin1String(kSeparator));
}

QString ratingOf(const QJsonObject &object)
{
    const double rating = object.value(QLatin1String("vote_average")).toDouble(0);
    return rating > 0 && rating <= 10 ? QString::number(rating, 'f', 1) : QString();
}

// What the provider tells in English where it has nothing in the language asked for.
QString englishOverview(const QJsonObject &object)
{
    const QJsonArray translations =
        object.value(QLatin1String("translations")).toObject().value(QLatin1String("translations")).toArray();
    for (const QJsonValue &value : translations) {
        const QJsonObject translation = value.toObject();
        if (text(translation, "iso_639_1") == QLatin1String("en"))
            return text(translation.value(QLatin1String("data")).toObject(), "overview");
    }
    return {};
}

Description describe(const QJsonObject &object, const Keys &keys)
{
    Description description;
    description.title = text(object, keys.title);
    description.originalTitle = text(object, keys.originalTitle);
    description.overview = text(object, "overview");
    if (description.overview.isEmpty())
        description.overview = englishOverview(object);
    description.rating = ratingOf(object);
    description.genre = joined(namesOf(object.value(QLatin1String("genres"))));
    description.country = joined(namesOf(object.value(QLatin1String("production_countries"))));
    description.poster = text(object, "poster_path");
    description.backdrop = text(object, "backdrop_path");
    description.releaseDate = dateOf(object, keys.date);
    description.year = yearOf(description.releaseDate);
    description.runtimeMinutes = count(object, "runtime");
    const QJsonObject credits = object.value(QLatin1String("credits")).toObject();
    description.cast = joined(namesOf(credits.value(QLatin1String("cast"))));
    description.director = joined(namesOf(credits.value(QLatin1String("crew")), "Director"));
    const QString id = idOf(object);
    if (!id.isEmpty())
        description.identities.insert(QLatin1String(TmdbJson::Identity), id);
    return description;
}

void addIdentities(const QJsonObject &object, Description &description)
{
    const QString imdb = text(object, "imdb_id");
    if (!imdb.isEmpty())
        description.identities.insert(QStringLiteral("imdb"), imdb);
    const QString tvdb = idOf(object, "tvdb_id");
    if (!tvdb.isEmpty())
        description.identities.insert(QStringLiteral("tvdb"), tvdb);
}

QVector<ProviderMatch> matches(const QJsonObject &answer, const Keys &keys)
{
    QVector<ProviderMatch> found;
    const QJsonArray rows = answer.value(QLatin1String("results")).toArray();
    for (const QJsonValue &value : rows) {
        const QJsonObject row = value.toObject();
        ProviderMatch match;
        match.id = idOf(row);
        match.title = text(row, keys.title);
        if (match.id.isEmpty() || match.title.isEmpty())
            continue;
        match.originalTitle = text(row, keys.originalTitle);
        match.releaseDate = dateOf(row, keys.date);
        match.year = yearOf(match.releaseDate);
        match.poster = text(row, "poster_path");
        match.backdrop = text(row, "backdrop_path");
        found << match;
    }
    return found;
}

} // namespace

QVector<ProviderMatch> TmdbJson::movieMatches(const QJsonObject &answer)
{
    return matches(answer, kMovieKeys);
}

QVector<ProviderMatch> TmdbJson::showMatches(const QJsonObject &answer)
{
    return matches(answer, kShowKeys);
}

QString TmdbJson::foundId(const QJsonObject &answer, bool isShow)
{
    const QJsonArray rows = answer.value(QLatin1String(isShow ? "tv_results" : "movie_results")).toArray();
    return rows.isEmpty() ? QString() : idOf(rows.first().toObject());
}

ProviderMovie TmdbJson::movie(const QJsonObject &object)
{
    ProviderMovie movie;
    movie.description = describe(object, kMovieKeys);
    addIdentities(object, movie.description);
    const QJsonObject collection = object.value(QLatin1String("belongs_to_collection")).toObject();
    movie.collection = text(collection, "name");
    movie.collectionId = idOf(collection);
    return movie;
}

Description TmdbJson::collection(const QJsonObject &object)
{
    return describe(object, kSeasonKeys);
}

ProviderShow TmdbJson::show(const QJsonObject &object)
{
    ProviderShow show;
    show.description = describe(object, kShowKeys);
    // Shows have no director; those who made them stand in their place.
    show.description.director = joined(namesOf(object.value(QLatin1String("created_by"))));
    addIdentities(object.value(QLatin1String("external_ids")).toObject(), show.description);
    const QJsonArray seasons = object.value(QLatin1String("seasons")).toArray();
    for (const QJsonValue &value : seasons) {
        const QJsonObject row = value.toObject();
        if (row.value(QLatin1String("season_number")).isDouble())
            show.seasons.insert(count(row, "season_number"), describe(row, kSeasonKeys));
    }
    return show;
}

ProviderSeason TmdbJson::season(const QJsonObject &object)
{
    ProviderSeason season;
    season.description = describe(object, kSeasonKeys);
    const QJsonArray episodes = object.value(QLatin1String("episodes")).toArray();
    for (const QJsonValue &value : episodes) {
        const int number = count(value.toObject(), "episode_number");
        if (number > 0)
            season.episodes.insert(number, episode(value.toObject()));
    }
    return season;
}

Description TmdbJson::episode(const QJsonObject &object)
{
    Description description = describe(object, kSeasonKeys);
    description.poster = text(object, "still_path");
    const QStringList guests = namesOf(object.value(QLatin1String("guest_stars")));
    if (description.cast.isEmpty())
        description.cast = joined(guests);
    if (description.director.isEmpty())
        description.director = joined(namesOf(object.value(QLatin1String("crew")), "Director"));
    return description;
}

QString TmdbJson::sizeName(const QJsonObject &configuration, const QString &list, int width,
                           const QString &fallback)
{
    QString name = fallback;
    int best = std::numeric_limits<int>::max();
    const QJsonArray sizes = configuration.value(QLatin1String("images")).toObject().value(list).toArray();
    for (const QJsonValue &value : sizes) {
        const QString size = value.toString();
        bool isNumber = false;
        const int pixels = size.startsWith(QLatin1Char('w')) ? size.midRef(1).toInt(&isNumber) : 0;
        if (isNumber && pixels >= width && pixels < best) {
            best = pixels;
            name = QLatin1Char('w') + QString::number(pixels);
        }
    }
    return name;
}
