#include "VideoRows.h"

#include "StoredJson.h"
#include "TextFold.h"

#include <QRegularExpression>

namespace {

// "7.5", "7,5" and "7.5/10" are all seen in the field.
double ratingNumber(const QString &rating)
{
    static const QRegularExpression number(QStringLiteral("\\d+(?:[.,]\\d+)?"));
    return number.match(rating).captured().replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
}

int yearOf(const Description &description)
{
    constexpr int kYearDigits = 4;
    return description.year > 0 ? description.year : description.releaseDate.left(kYearDigits).toInt();
}

template<class Row>
std::vector<Column<Row>> withDescribed(std::vector<Column<Row>> columns)
{
    const std::vector<Column<Row>> described{
        {"title", &Described::title},
        {"sort_title", &Described::sortTitle},
        {"search", &Described::search},
        {"rating", &Described::rating},
        {"rating_value", &Described::ratingValue},
        {"runtime", &Described::runtime},
        {"director", &Described::director},
        {"actors", &Described::cast},
        {"genre", &Described::genre},
        {"genre_search", &Described::genreSearch},
        {"country", &Described::country},
        {"country_search", &Described::countrySearch},
        {"overview", &Described::overview},
        {"poster", &Described::poster},
        {"backdrop", &Described::backdrop},
        {"year", &Described::year},
    };
    columns.insert(columns.end(), described.begin(), described.end());
    return columns;
}

} // namespace

void Described::describe(const Description &description, const QString &nameForTitle)
{
    title = description.title.isEmpty() ? nameForTitle : description.title;
    sortTitle = TextFold::folded(description.sortTitle.isEmpty() ? title : description.sortTitle);
    // A line break between them: nobody searches for one.
    search = TextFold::folded(title + QLatin1Char('\n') + description.originalTitle);
    rating = description.rating;
    ratingValue = ratingNumber(rating);
    runtime = description.runtimeMinutes > 0 ? QString::number(description.runtimeMinutes) : QString();
    director = description.director;
    cast = description.cast;
    genre = description.genre;
    genreSearch = TextFold::folded(genre);
    country = description.country;
    countrySearch = TextFold::folded(country);
    overview = description.overview;
    poster = description.poster;
    backdrop = description.backdrop;
    year = yearOf(description);
}

const RowTable<VideoRow> &VideoRow::table()
{
    static const RowTable<VideoRow> table(QStringLiteral("items"),
                                          withDescribed<VideoRow>({
                                              {"id", &VideoRow::id},
                                              {"kind", &VideoRow::kind},
                                              {"missing_since", &VideoRow::missingSince},
                                              {"lead_id", &VideoRow::leadId},
                                              {"show_id", &VideoRow::showId},
                                              {"season", &VideoRow::season},
                                              {"episode", &VideoRow::episode},
                                              {"last_episode", &VideoRow::lastEpisode},
                                              {"group_id", &VideoRow::groupId},
                                              {"root", &VideoRow::root},
                                              {"size", &VideoRow::size},
                                              {"modified", &VideoRow::modified},
                                              {"added", &VideoRow::added},
                                              {"seen", &VideoRow::seen},
                                              {"wants", &VideoRow::wants},
                                              {"tried", &VideoRow::tried},
                                              {"suffix", &VideoRow::suffix},
                                              {"folder", &VideoRow::folder},
                                              {"path", &VideoRow::path},
                                              {"real_path", &VideoRow::realPath},
                                              {"scanned", &VideoRow::scanned},
                                              {"provided", &VideoRow::provided},
                                              {"matched", &VideoRow::matched},
                                          }));
    return table;
}

ScannedVideo VideoRow::scannedVideo() const
{
    ScannedVideo video = StoredJson::video(scanned);
    video.path = path;
    video.realPath = realPath;
    video.stamp = {size, modified};
    return video;
}

const RowTable<ShowRow> &ShowRow::table()
{
    static const RowTable<ShowRow> table(QStringLiteral("shows"), withDescribed<ShowRow>({
                                                                      {"id", &ShowRow::id},
                                                                      {"episodes", &ShowRow::episodes},
                                                                      {"added", &ShowRow::added},
                                                                      {"wants", &ShowRow::wants},
                                                                      {"tried", &ShowRow::tried},
                                                                      {"show_key", &ShowRow::key},
                                                                      {"path", &ShowRow::path},
                                                                      {"scanned", &ShowRow::scanned},
                                                                      {"provided", &ShowRow::provided},
                                                                  }));
    return table;
}

const RowTable<SeasonRow> &SeasonRow::table()
{
    static const RowTable<SeasonRow> table(QStringLiteral("seasons"), {
                                                                          {"id", &SeasonRow::id},
                                                                          {"show_id", &SeasonRow::showId},
                                                                          {"number", &SeasonRow::number},
                                                                          {"year", &SeasonRow::year},
                                                                          {"title", &SeasonRow::title},
                                                                          {"director", &SeasonRow::director},
                                                                          {"actors", &SeasonRow::cast},
                                                                          {"overview", &SeasonRow::overview},
                                                                          {"poster", &SeasonRow::poster},
                                                                          {"scanned", &SeasonRow::scanned},
                                                                          {"provided", &SeasonRow::provided},
                                                                      });
    return table;
}
