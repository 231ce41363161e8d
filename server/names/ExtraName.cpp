#include "ExtraName.h"

#include "NameText.h"

namespace ExtraName {

namespace {

struct Row {
    const char *text;
    Certainty certainty;
};

constexpr Certainty Sure = Certainty::Sure;
constexpr Certainty Beside = Certainty::BesideFilm;

constexpr Row folders[] = {
    {"trailers", Sure},    {"trailer", Sure},     {"behind the scenes", Sure}, {"deleted scenes", Sure},
    {"featurettes", Sure}, {"featurette", Sure},  {"samples", Sure},           {"sample", Sure},
    {"extrafanart", Sure}, {"extrathumbs", Sure}, {"interviews", Beside},      {"scenes", Beside},
    {"shorts", Beside},    {"clips", Beside},     {"extras", Beside},          {"extra", Beside},
    {"other", Beside},     {"backdrops", Beside}, {"theme music", Beside},     {"theme-music", Beside},
    {"bonus", Beside},
};

constexpr Row suffixes[] = {
    {"trailer", Sure},   {"sample", Sure},  {"behindthescenes", Sure}, {"featurette", Sure},
    {"deleted", Beside}, {"scene", Beside}, {"clip", Beside},          {"interview", Beside},
    {"short", Beside},   {"other", Beside}, {"extra", Beside},         {"deletedscene", Beside},
};

constexpr const char *wholeNames[] = {"trailer", "sample", "theme", "movie-trailer"};

// The word "sample" opens the name of a sample in releases: "sample-film.2010.mkv".
constexpr const char *prefixes[] = {"sample-", "sample.", "sample_"};

} // namespace

Certainty ofFolder(const QString &name)
{
    const QString wanted = NameText::comparable(name);
    for (const Row &row : folders)
        if (wanted == NameText::comparable(QLatin1String(row.text)))
            return row.certainty;
    return Certainty::None;
}

bool isPictureFolder(const QString &name)
{
    return isBackdropFolder(name) || NameText::comparable(name) == QLatin1String("extrathumbs");
}

bool isBackdropFolder(const QString &name)
{
    return NameText::comparable(name) == QLatin1String("extrafanart");
}

File ofFile(const QString &name)
{
    const QString folded = NameText::folded(name.trimmed());
    for (const char *whole : wholeNames)
        if (folded == QLatin1String(whole))
            return {Sure, {}};
    // "trailer1", "trailer 2"
    if (folded.startsWith(QLatin1String("trailer"))) {
        const int start = NameText::skipSeparators(folded, 7, 1);
        const NameText::Number number = NameText::numberAt(folded, start, 2);
        if (number.isValid() && start + number.digits == folded.size())
            return {Sure, {}};
    }
    for (const char *prefix : prefixes)
        if (folded.startsWith(QLatin1String(prefix)))
            return {Sure, name.trimmed().mid(int(qstrlen(prefix)))};
    for (const Row &row : suffixes) {
        const QLatin1String suffix(row.text);
        // A dot or a space before the word is part of many titles; only the sure words may follow one.
        const int mark = folded.size() - suffix.size() - 1;
        if (mark < 1 || !folded.endsWith(suffix))
            continue;
        const QChar separator = folded.at(mark);
        const bool hyphen = separator == QLatin1Char('-');
        const bool loose =
            row.certainty == Sure && (separator == QLatin1Char('.') || separator == QLatin1Char('_'));
        if (hyphen || loose)
            return {row.certainty, name.trimmed().left(mark).trimmed()};
    }
    return {};
}

} // namespace ExtraName
