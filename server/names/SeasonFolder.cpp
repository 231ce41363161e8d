#include "SeasonFolder.h"

#include "NameText.h"
#include "NumberWords.h"
#include "ReleaseWords.h"
#include "VideoName.h"

namespace {

constexpr const char16_t *specials[] = {
    u"specials", u"special", u"especiales", u"spezial", u"spéciaux",
    u"speciali", u"spesial", u"特别篇",     u"特典",    u"sp",
};

struct Place {
    int start{-1};
    int end{-1};
    int number{-1};
};

// "S01" as a word; "S01E02" is an episode.
Place seasonMark(const QString &folded, int at)
{
    if (folded.at(at) != QLatin1Char('s'))
        return {};
    const NameText::Number number = NameText::numberAt(folded, at + 1, 4);
    const int end = at + 1 + number.digits;
    return number.isValid() && NameText::isBoundary(folded, end) ? Place{at, end, number.value} : Place{};
}

Place find(const QString &folded)
{
    for (const NameText::Word &word : NameText::words(folded)) {
        for (const auto read : {&NumberWords::at, &NumberWords::ordinalAt}) {
            const NumberWords::Match match = read(folded, word.start, NumberWords::Kind::Season);
            if (match.isValid() && NameText::isBoundary(folded, word.start + match.length))
                return {word.start, word.start + match.length, match.value};
        }
        if (const Place mark = seasonMark(folded, word.start); mark.number >= 0)
            return mark;
        // Ideographs run on: "某剧第1季".
        const int offset = folded.midRef(word.start, word.length).indexOf(QChar(u'第'));
        const NumberWords::Match match =
            offset > 0 ? NumberWords::at(folded, word.start + offset, NumberWords::Kind::Season)
                       : NumberWords::Match();
        if (match.isValid())
            return {word.start + offset, word.start + offset + match.length, match.value};
    }
    return {};
}

} // namespace

SeasonFolder SeasonFolder::parse(const QString &name)
{
    SeasonFolder result;
    const QString text = NameText::sanitized(name).trimmed();
    const QString folded = NameText::folded(text);
    const QString whole = NameText::comparable(text);
    for (const char16_t *word : specials) {
        if (whole == QStringView(word)) {
            result.number = 0;
            return result;
        }
    }
    const Place place = find(folded);
    if (place.number < 0)
        return result;
    // Behind the number stands nothing but years and words of a release; else this is a title ("Season 1 of
    // Love").
    const QString rest = text.mid(place.end);
    const QString foldedRest = NameText::folded(rest);
    const QVector<NameText::Word> words = NameText::words(foldedRest);
    const bool released =
        !words.isEmpty()
        && ReleaseWords::at(foldedRest, words.first().start).strength != ReleaseWords::Strength::None;
    const VideoName before = VideoName::parse(text.left(place.start));
    const bool named = !NameText::comparable(before.title).isEmpty();
    const QString behind = rest.mid(NameText::skipSeparators(rest, 0)).trimmed();
    const bool bracketed = NameText::comparable(rest).isEmpty() || behind.startsWith(QLatin1Char('('))
                           || behind.startsWith(QLatin1Char('['));
    const bool labelled = rest.startsWith(QLatin1String(" - ")) || rest.startsWith(QLatin1Char(':'));
    // "Series 7 - The Title (2001)" is a film's folder; "Season 1 (2010)" tells the year of the season.
    const VideoName label = VideoName::parse(rest);
    if (!bracketed && !released && label.yearInBrackets)
        return result;
    if (!bracketed && !released && !labelled && label.year == 0)
        return result;
    result.number = place.number;
    if (named) {
        result.series = before.title;
        result.seriesYear = before.year;
    }
    return result;
}
