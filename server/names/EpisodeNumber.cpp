#include "EpisodeNumber.h"

#include "NameText.h"
#include "ReleaseWords.h"
#include "VideoName.h"

#include <algorithm>

namespace {

using NameText::Number;
using NameText::Word;

// More of them in a season than this, and a number of three digits is taken for one of the whole series.
constexpr int mostEpisodesOfSeason = 40;

// Numbers that stand for the lines of a picture or for a codec also where no letter says so.
constexpr int technicalNumbers[] = {240, 264, 265, 360, 480, 540, 576, 720, 1080, 1440, 2160};

bool isTechnical(int value)
{
    return std::find(std::begin(technicalNumbers), std::end(technicalNumbers), value)
           != std::end(technicalNumbers);
}

bool isYear(const Number &number)
{
    return number.digits == 4 && number.value >= 1900 && number.value <= 2099;
}

// "Saga Episode 4 (1977)", "Saga Episode 4 - The Title (1977)" and "10x10 (2018)": people write a year in
// round brackets behind the names of films. An episode's "1x02 - Title (2010)" has its title between.
bool isFilm(const EpisodeMatch &match, const QString &text)
{
    const QString rest = text.mid(match.end);
    switch (match.spelling) {
    case EpisodeMatch::Spelling::Sure:
        return false;
    case EpisodeMatch::Spelling::Cross:
        return VideoName::parse(rest).yearInBrackets
               && NameText::skipSeparators(rest, 0) == rest.indexOf(QLatin1Char('('));
    case EpisodeMatch::Spelling::Word:
        return VideoName::parse(rest).yearInBrackets;
    }
    return false;
}

// The groups in brackets, and with them what they hold, become spaces. Positions stay the same.
QString withoutGroups(const QString &text)
{
    QString result = text;
    int depth = 0;
    int opened = -1;
    for (int i = 0; i < result.size(); ++i) {
        const QChar character = result.at(i);
        if (character == QLatin1Char('[') || character == QLatin1Char('(') || character == QLatin1Char('{')) {
            if (depth++ == 0)
                opened = i;
        } else if (depth > 0
                   && (character == QLatin1Char(']') || character == QLatin1Char(')')
                       || character == QLatin1Char('}'))) {
            if (--depth == 0)
                std::fill(result.begin() + opened, result.begin() + i + 1, QLatin1Char(' '));
        }
    }
    return result;
}

// Where the name of the series ends that opens the text; 0 where it doesn't. Compared word by word.
int seriesEnd(const QString &folded, const QString &series)
{
    const QStringList wanted = NameText::comparable(series).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (wanted.isEmpty())
        return 0;
    QString seen;
    const QString whole = wanted.join(QString());
    for (int i = 0; i < folded.size(); ++i) {
        const QChar character = folded.at(i);
        if (!character.isLetterOrNumber())
            continue;
        if (seen.size() >= whole.size() || character != whole.at(seen.size()))
            return 0;
        seen += character;
        if (seen.size() == whole.size())
            return NameText::isBoundary(folded, i + 1) ? i + 1 : 0;
    }
    return 0;
}

// A number alone between separators, with the "v2" of a second version: the match, or none.
EpisodeMatch bareAt(const QString &text, int position)
{
    const Number number = NameText::numberAt(text, position, 4);
    if (!number.isValid() || isYear(number) || isTechnical(number.value))
        return {};
    int end = position + number.digits;
    if (end + 1 < text.size() && text.at(end) == QLatin1Char('v') && NameText::isDigit(text.at(end + 1))
        && NameText::isBoundary(text, end + 2))
        end += 2;
    if (!NameText::isBoundary(text, end))
        return {};
    EpisodeMatch match;
    match.start = position;
    match.episode = match.lastEpisode = number.value;
    match.end = EpisodePatterns::skipFurtherNumbers(text, end, number.value, match.lastEpisode);
    return match;
}

struct BareNumber {
    EpisodeMatch match;
    bool counted{false}; // set off by a dash, so counted through and not to be taken apart
};

// The bare number that most likely counts: the one that opens the text, else the last one behind " - ", else
// the last.
BareNumber findBare(const QString &text, int from)
{
    const int release = ReleaseWords::start(text);
    BareNumber last;
    bool first = true;
    for (const Word &word : NameText::words(text)) {
        if (word.start < from)
            continue;
        if (release >= 0 && word.start >= release)
            break;
        const EpisodeMatch match = word.start >= last.match.end ? bareAt(text, word.start) : EpisodeMatch();
        const bool dashed = word.start >= 3 && text.midRef(word.start - 3, 3) == QLatin1String(" - ");
        // "7.1" and "5.1": a digit behind a dot belongs to the one before it.
        const bool fraction = word.start >= 2 && text.at(word.start - 1) == QLatin1Char('.') && !first
                              && word.length == 1 && NameText::isDigit(text.at(word.start - 2));
        if (match.isValid() && !fraction) {
            if (first)
                return {match, dashed && from > 0};
            if (dashed || !last.counted)
                last = {match, dashed};
        }
        first = false;
    }
    return last;
}

} // namespace

EpisodeNumber EpisodeNumber::parse(const QString &name)
{
    return parse(name, Surroundings());
}

EpisodeNumber EpisodeNumber::parse(const QString &name, const Surroundings &around)
{
    EpisodeNumber result;
    const QString text = NameIdentities::take(NameText::sanitized(name)).rest;
    const QString folded = NameText::folded(text);
    const EpisodeMatch match = EpisodePatterns::find(folded);
    const bool known = around.show || around.season >= 0;
    if (match.isValid() && !known && isFilm(match, text))
        return {};
    if (match.isValid()) {
        result.setTexts(text, match.start, match.end);
        // A date alone is a recording of some day, unless a series is around.
        if (match.date.isValid() && !known && result.series.isEmpty())
            return {};
        result.source = match.date.isValid() ? Source::Date : Source::Explicit;
        result.date = match.date;
        result.season = match.season;
        result.episode = match.episode;
        result.lastEpisode = match.lastEpisode;
        return result;
    }

    const bool team = folded.startsWith(QLatin1Char('['));
    if (!known && !team)
        return {};
    const QString plain = withoutGroups(folded);
    const BareNumber bare = findBare(plain, seriesEnd(plain, around.series));
    if (!bare.match.isValid() || (!known && !bare.counted))
        return {};
    result.setTexts(withoutGroups(text), bare.match.start, bare.match.end);
    if (!known && result.series.isEmpty())
        return {};
    result.setBareNumber(bare.match, around, bare.counted || team);
    return result;
}

void EpisodeNumber::setTexts(const QString &text, int start, int end)
{
    // The number may stand in brackets of its own.
    while (start > 0
           && (NameText::isSeparator(text.at(start - 1)) || QStringView(u"([{").contains(text.at(start - 1))))
        --start;
    while (end < text.size() && QStringView(u")]}").contains(text.at(end)))
        ++end;
    const VideoName before = VideoName::parse(text.left(start));
    if (!NameText::comparable(before.title).isEmpty())
        series = before.title;
    seriesYear = before.year;
    const QString rest = text.mid(end);
    const QString folded = NameText::folded(rest);
    // A title behind the number is a title only up to the words of the release.
    if (ReleaseWords::areAll(folded.left(qMax(0, ReleaseWords::start(folded)))))
        return;
    const NameText::Word first = NameText::words(folded).value(0);
    if (first.length > 0 && ReleaseWords::at(folded, first.start).strength == ReleaseWords::Strength::Strong)
        return;
    const QString cleaned = VideoName::parse(rest).title;
    if (!NameText::comparable(cleaned).isEmpty())
        title = cleaned;
}

void EpisodeNumber::setBareNumber(const EpisodeMatch &match, const Surroundings &around, bool counted)
{
    source = Source::Absolute;
    absolute = match.episode;
    episode = match.episode;
    lastEpisode = match.lastEpisode;
    season = around.season;
    const int hundreds = match.episode / 100;
    const int rest = match.episode % 100;
    if (hundreds == 0 || rest == 0 || match.lastEpisode != match.episode || counted)
        return;
    const bool fitsFolder = around.season >= 0 && hundreds == around.season;
    const bool fitsNone = around.season < 0 && hundreds < 10 && rest <= mostEpisodesOfSeason;
    if (!fitsFolder && !fitsNone)
        return;
    source = Source::Guess;
    season = hundreds;
    episode = lastEpisode = rest;
}
