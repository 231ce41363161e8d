#include "NumberWords.h"

#include "NameText.h"

namespace NumberWords {

namespace {

struct Row {
    Kind kind;
    const char16_t *word;
};

constexpr Kind Season = Kind::Season;
constexpr Kind Episode = Kind::Episode;

constexpr Row rows[] = {
    {Season, u"season"},    {Season, u"seasons"},     {Season, u"series"},    {Season, u"staffel"},
    {Season, u"saison"},    {Season, u"temporada"},   {Season, u"stagione"},  {Season, u"seizoen"},
    {Season, u"säsong"},    {Season, u"sesong"},      {Season, u"sæson"},     {Season, u"kausi"},
    {Season, u"sezon"},     {Season, u"sezona"},      {Season, u"sezóna"},    {Season, u"série"},
    {Season, u"évad"},      {Season, u"сезон"},       {Season, u"シーズン"},  {Season, u"시즌"},
    {Season, u"mùa"},       {Season, u"musim"},       {Episode, u"episode"},  {Episode, u"episodes"},
    {Episode, u"épisode"},  {Episode, u"folge"},      {Episode, u"episodio"}, {Episode, u"episódio"},
    {Episode, u"capitulo"}, {Episode, u"capítulo"},   {Episode, u"puntata"},  {Episode, u"aflevering"},
    {Episode, u"avsnitt"},  {Episode, u"afsnit"},     {Episode, u"jakso"},    {Episode, u"odcinek"},
    {Episode, u"epizoda"},  {Episode, u"rész"},       {Episode, u"bölüm"},    {Episode, u"серия"},
    {Episode, u"выпуск"},   {Episode, u"エピソード"}, {Episode, u"에피소드"}, {Episode, u"ep"},
    {Episode, u"eps"},
};

constexpr const char16_t *ordinalEndings[] = {u"st",  u"nd",  u"rd", u"th", u"ª",  u"º",
                                              u"ème", u"eme", u"e",  u"re", u"-й", u"й"};

// The unit behind the number of "第3季"
bool isUnit(QChar character, Kind kind)
{
    return kind == Season ? QStringView(u"季期部").contains(character)
                          : QStringView(u"集話话回").contains(character);
}

int ideographDigit(QChar character)
{
    return QStringView(u"零一二三四五六七八九十").indexOf(character);
}

// 十, 十二, 二十, 二十三 and plain digits
NameText::Number ideographNumber(const QString &text, int position)
{
    NameText::Number number = NameText::numberAt(text, position, 4);
    if (number.isValid())
        return number;
    int value = 0;
    int digits = 0;
    for (; digits < 3 && position + digits < text.size(); ++digits) {
        const int digit = ideographDigit(text.at(position + digits));
        if (digit < 0)
            break;
        value = digit == 10 ? qMax(value, 1) * 10 : value + digit;
    }
    return {value, digits};
}

Match ideographAt(const QString &text, int position, Kind kind)
{
    if (text.at(position).unicode() != u'第')
        return {};
    const int start = NameText::skipSeparators(text, position + 1, 1);
    const NameText::Number number = ideographNumber(text, start);
    const int unit = NameText::skipSeparators(text, start + number.digits, 1);
    if (!number.isValid() || unit >= text.size() || !isUnit(text.at(unit), kind))
        return {};
    return {number.value, unit + 1 - position};
}

// The length of the longest word of the kind at the position.
int wordLength(const QString &text, int position, Kind kind)
{
    int longest = 0;
    for (const Row &row : rows) {
        const QStringView word(row.word);
        if (row.kind == kind && word.size() > longest && QStringView(text).mid(position).startsWith(word))
            longest = int(word.size());
    }
    return longest;
}

} // namespace

Match at(const QString &folded, int position, Kind kind)
{
    if (position < 0 || position >= folded.size())
        return {};
    if (const Match match = ideographAt(folded, position, kind); match.isValid())
        return match;
    const int word = wordLength(folded, position, kind);
    if (word == 0)
        return {};
    const int start = NameText::skipSeparators(folded, position + word, 3);
    const NameText::Number number = NameText::numberAt(folded, start, 4);
    const int end = start + number.digits;
    // A letter may follow only where it marks what comes next, as in "season1e02" and "ep12v2".
    const bool ended = NameText::isBoundary(folded, end) || folded.at(end) == QLatin1Char('e')
                       || folded.at(end) == QLatin1Char('v');
    if (!number.isValid() || !ended)
        return {};
    return {number.value, end - position};
}

Match ordinalAt(const QString &folded, int position, Kind kind)
{
    const NameText::Number number = NameText::numberAt(folded, position, 3);
    if (!number.isValid())
        return {};
    int at = position + number.digits;
    for (const char16_t *ending : ordinalEndings) {
        const QStringView view(ending);
        if (QStringView(folded).mid(at).startsWith(view)
            && NameText::isBoundary(folded, at + int(view.size()))) {
            at += int(view.size());
            break;
        }
    }
    at = NameText::skipSeparators(folded, at, 2);
    const int word = at < folded.size() ? wordLength(folded, at, kind) : 0;
    if (word == 0 || !NameText::isBoundary(folded, at + word))
        return {};
    return {number.value, at + word - position};
}

} // namespace NumberWords
