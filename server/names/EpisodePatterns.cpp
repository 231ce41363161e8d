#include "EpisodePatterns.h"

#include "NameText.h"
#include "NumberWords.h"

namespace EpisodePatterns {

namespace {

using NameText::Number;

constexpr int seasonDigits = 4;
constexpr int episodeDigits = 4;
constexpr int mostEpisodesInFile = 50;

bool isAt(const QString &text, int position, char character)
{
    return position >= 0 && position < text.size() && text.at(position) == QLatin1Char(character);
}

// "e", "ep" and the separator behind it; the position itself where none stands.
int skipEpisodeMark(const QString &text, int position)
{
    if (!isAt(text, position, 'e'))
        return position;
    const int mark = isAt(text, position + 1, 'p') ? position + 2 : position + 1;
    return NameText::skipSeparators(text, mark, 1);
}

// S01E02, s01.e02, S2010 Ep 3, S01x02
bool matchSeasonEpisode(const QString &text, int at, EpisodeMatch &match)
{
    if (text.at(at) != QLatin1Char('s'))
        return false;
    const Number season = NameText::numberAt(text, NameText::skipSeparators(text, at + 1, 1), seasonDigits);
    if (!season.isValid())
        return false;
    const int behindSeason = NameText::skipSeparators(text, at + 1, 1) + season.digits;
    const int mark = NameText::skipSeparators(text, behindSeason);
    int number = skipEpisodeMark(text, mark);
    if (number == mark) {
        if (!isAt(text, mark, 'x') || mark != behindSeason)
            return false;
        number = mark + 1;
    }
    const Number episode = NameText::numberAt(text, number, episodeDigits);
    if (!episode.isValid())
        return false;
    match.season = season.value;
    match.episode = match.lastEpisode = episode.value;
    match.end = skipFurtherNumbers(text, number + episode.digits, episode.value, match.lastEpisode);
    return true;
}

// 1x02; a picture's size has more digits before the x, and a shape ("16x9") fewer behind it.
bool matchCross(const QString &text, int at, EpisodeMatch &match)
{
    const Number season = NameText::numberAt(text, at, 2);
    const int cross = at + season.digits;
    if (!season.isValid() || !isAt(text, cross, 'x'))
        return false;
    const Number episode = NameText::numberAt(text, cross + 1, 3);
    if (episode.digits < 2)
        return false;
    match.spelling = EpisodeMatch::Spelling::Cross;
    match.season = season.value;
    match.episode = match.lastEpisode = episode.value;
    const int behind = cross + 1 + episode.digits;
    match.end = skipFurtherNumbers(text, behind, episode.value, match.lastEpisode);
    return match.end > behind || NameText::isBoundary(text, behind);
}

// "Season 3 Episode 9", "3. Staffel Folge 9" without its first number, "第1季第2集"
bool matchSeasonWord(const QString &text, int at, EpisodeMatch &match)
{
    const NumberWords::Match season = NumberWords::at(text, at, NumberWords::Kind::Season);
    if (!season.isValid())
        return false;
    int next = at + season.length;
    for (int skipped = 0; skipped < 4 && next < text.size(); ++skipped, ++next)
        if (!NameText::isSeparator(text.at(next)) && text.at(next) != QLatin1Char(','))
            break;
    const NumberWords::Match episode = NumberWords::at(text, next, NumberWords::Kind::Episode);
    if (!episode.isValid())
        return false;
    match.season = season.value;
    match.episode = match.lastEpisode = episode.value;
    match.end = skipFurtherNumbers(text, next + episode.length, episode.value, match.lastEpisode);
    return true;
}

// "Episode 9", "ep01", "e01", "Folge 9", "第2話"
bool matchEpisodeWord(const QString &text, int at, EpisodeMatch &match)
{
    NumberWords::Match episode = NumberWords::at(text, at, NumberWords::Kind::Episode);
    if (!episode.isValid() && isAt(text, at, 'e')) {
        const Number number = NameText::numberAt(text, at + 1, episodeDigits);
        if (number.digits >= 2 && NameText::isBoundary(text, at + 1 + number.digits))
            episode = {number.value, 1 + number.digits};
    }
    if (!episode.isValid())
        return false;
    match.spelling = EpisodeMatch::Spelling::Word;
    match.episode = match.lastEpisode = episode.value;
    match.end = skipFurtherNumbers(text, at + episode.length, episode.value, match.lastEpisode);
    return true;
}

// 2010.05.12 and 12.05.2010, the separators alike
bool matchDate(const QString &text, int at, EpisodeMatch &match)
{
    const Number first = NameText::numberAt(text, at, 4);
    const bool yearFirst = first.digits == 4;
    if (!yearFirst && (first.digits == 0 || first.digits > 2))
        return false;
    const int mark = at + first.digits;
    if (mark >= text.size() || !NameText::isSeparator(text.at(mark)))
        return false;
    const Number second = NameText::numberAt(text, mark + 1, 2);
    const int secondMark = mark + 1 + second.digits;
    if (!second.isValid() || secondMark >= text.size() || text.at(secondMark) != text.at(mark))
        return false;
    const Number third = NameText::numberAt(text, secondMark + 1, yearFirst ? 2 : 4);
    const int end = secondMark + 1 + third.digits;
    if (!third.isValid() || (!yearFirst && third.digits != 4)
        || (yearFirst && second.digits + third.digits < 4) || !NameText::isBoundary(text, end))
        return false;
    const QDate date = yearFirst ? QDate(first.value, second.value, third.value)
                                 : QDate(third.value, second.value, first.value);
    if (!date.isValid() || date.year() < 1900 || date.year() > 2099)
        return false;
    match.date = date;
    match.end = end;
    return true;
}

using Matcher = bool (*)(const QString &, int, EpisodeMatch &);
constexpr Matcher matchers[] = {matchSeasonEpisode, matchCross, matchSeasonWord, matchDate, matchEpisodeWord};

} // namespace

EpisodeMatch find(const QString &folded)
{
    for (const Matcher matcher : matchers) {
        for (int at = 0; at < folded.size(); ++at) {
            // Ideographs stand side by side without a boundary between them.
            const bool ideograph = folded.at(at).script() == QChar::Script_Han;
            EpisodeMatch match;
            if ((ideograph || NameText::isBoundary(folded, at - 1)) && matcher(folded, at, match)) {
                match.start = at;
                return match;
            }
        }
    }
    return {};
}

int skipFurtherNumbers(const QString &folded, int position, int first, int &last)
{
    for (int count = 0; count < mostEpisodesInFile; ++count) {
        int at = position;
        while (at < folded.size() && at < position + 3
               && (NameText::isSeparator(folded.at(at)) || QStringView(u"+&~").contains(folded.at(at))))
            ++at;
        const bool tight = at == position + 1 && (isAt(folded, position, '-') || isAt(folded, position, '~'));
        // The season before the further number: "-S01E03", "-1x03".
        const int seasonMark = isAt(folded, at, 's') ? at + 1 : at;
        const Number season = NameText::numberAt(folded, seasonMark, 2);
        const int behindSeason = seasonMark + season.digits;
        int number = at;
        if (seasonMark > at && season.isValid())
            number = skipEpisodeMark(folded, behindSeason);
        else if (tight && season.isValid() && isAt(folded, behindSeason, 'x'))
            number = behindSeason + 1;
        else if (isAt(folded, at, 'e') || (at == position && isAt(folded, at, 'x')))
            number = isAt(folded, at, 'x') ? at + 1 : skipEpisodeMark(folded, at);
        const bool marked = number > at;
        const Number further = NameText::numberAt(folded, number, marked ? episodeDigits : 3);
        const int end = number + further.digits;
        const bool plausible =
            further.isValid() && further.value > last && further.value - first < mostEpisodesInFile;
        if (!plausible || (!marked && !tight) || (!marked && !NameText::isBoundary(folded, end)))
            return position;
        last = further.value;
        position = end;
    }
    return position;
}

} // namespace EpisodePatterns
