#include "VideoName.h"

#include "NameText.h"
#include "ReleaseWords.h"

#include <QDate>

namespace {

struct Provider {
    const char *prefix;
    const char *key;
};

constexpr Provider providers[] = {
    {"imdbid", "imdb"}, {"imdb", "imdb"},   {"tmdbid", "tmdb"},
    {"tmdb", "tmdb"},   {"tvdbid", "tvdb"}, {"tvdb", "tvdb"},
};

constexpr int firstYear = 1900;
constexpr int longestIdentity = 12;
constexpr int longestYears = 11; // "1999 - 2005"

int lastYear()
{
    static const int year = QDate::currentDate().year() + 2;
    return year;
}

bool isImdbId(const QString &text)
{
    return text.size() >= 9 && text.size() <= longestIdentity && text.startsWith(QLatin1String("tt"))
           && NameText::numberAt(text, 2, 9).digits == text.size() - 2;
}

bool readIdentity(const QString &group, QMap<QString, QString> &identities)
{
    const QString text = NameText::folded(group).trimmed();
    if (isImdbId(text)) {
        identities.insert(QStringLiteral("imdb"), text);
        return true;
    }
    for (const Provider &provider : providers) {
        const QLatin1String prefix(provider.prefix);
        if (!text.startsWith(prefix) || text.size() <= prefix.size() + 1)
            continue;
        const QChar mark = text.at(prefix.size());
        if (mark != QLatin1Char('-') && mark != QLatin1Char('=') && mark != QLatin1Char(':')
            && mark != QLatin1Char(' '))
            continue;
        const QString value = text.mid(prefix.size() + 1).trimmed();
        const bool number = !value.isEmpty() && NameText::numberAt(value, 0, 9).digits == value.size();
        if (!number && !isImdbId(value))
            return false;
        identities.insert(QLatin1String(provider.key), value);
        return true;
    }
    return false;
}

QChar closingOf(QChar opening)
{
    switch (opening.unicode()) {
    case '[':
        return QLatin1Char(']');
    case '{':
        return QLatin1Char('}');
    case 0x3010:
        return QChar(0x3011);
    default:
        return {};
    }
}

// Calls take(content) for each group in square or curly brackets and puts what it answers in the group's
// place.
template<typename Take>
QString replaceGroups(const QString &text, Take take)
{
    QString result;
    result.reserve(text.size());
    QMap<QChar, int> missing; // a closing bracket is looked for once only where the text has no more of it
    for (int i = 0; i < text.size(); ++i) {
        const QChar closing = closingOf(text.at(i));
        const int end = closing.isNull() || missing.contains(closing) ? -1 : text.indexOf(closing, i + 1);
        if (end < 0) {
            if (!closing.isNull())
                missing.insert(closing, i);
            result += text.at(i);
            continue;
        }
        result += take(text.mid(i + 1, end - i - 1));
        i = end;
    }
    return result;
}

bool isYearText(const QString &text)
{
    const NameText::Number number = NameText::numberAt(text, 0, 4);
    return number.digits == 4 && text.size() == 4 && number.value >= firstYear && number.value <= lastYear();
}

// Groups in square brackets name sites, teams and technical things; only years and words of a release are of
// use.
QString withoutGroups(const QString &text)
{
    QString plain = replaceGroups(text, [](const QString &content) {
        const QString trimmed = content.trimmed();
        if (isYearText(trimmed))
            return QStringLiteral(" (%1) ").arg(trimmed);
        if (ReleaseWords::areAll(NameText::folded(trimmed)))
            return QStringLiteral(" %1 ").arg(trimmed);
        return QStringLiteral(" ");
    });
    if (!NameText::comparable(plain).isEmpty())
        return plain;
    QString opened = text;
    for (QChar &character : opened)
        if (!closingOf(character).isNull() || character == QLatin1Char(']') || character == QLatin1Char('}'))
            character = QLatin1Char(' ');
    return opened;
}

// One or two digits that can be a day or a month.
bool isDatePart(const NameText::Number &number, int digits)
{
    return number.isValid() && number.digits >= digits && number.value >= 1 && number.value <= 31;
}

// Whether the four digits are part of a date: 2010-05-12 or 12.5.2010.
bool isInDate(const QString &text, int position)
{
    const auto separated = [&text](int at) {
        return at >= 0 && at < text.size() && NameText::isSeparator(text.at(at));
    };
    const int after = position + 4;
    // "2010.5.1" is a year and a number of channels, so that two digits are asked for here.
    if (separated(after) && isDatePart(NameText::numberAt(text, after + 1, 2), 2) && separated(after + 3)
        && isDatePart(NameText::numberAt(text, after + 4, 2), 2))
        return true;
    int at = position - 1;
    for (int part = 0; part < 2; ++part) {
        if (!separated(at))
            return false;
        const int end = at;
        while (at > 0 && end - at < 3 && NameText::isDigit(text.at(at - 1)))
            --at;
        if (!isDatePart(NameText::numberAt(text, at, 2), 1))
            return false;
        --at;
    }
    return true;
}

struct Year {
    int value{0};
    int position{-1};
    bool inBrackets{false};
};

// Whether the year opens the name and is set off from what follows, as in "(2010) Film" and "2010 - Film".
bool leadsTheName(const QString &text, int position, bool inBrackets)
{
    return inBrackets || text.midRef(position + 4, 3) == QLatin1String(" - ");
}

Year findYear(const QString &folded, int releaseStart)
{
    Year best;
    const QVector<NameText::Word> words = NameText::words(folded);
    for (int i = 0; i < words.size(); ++i) {
        const int at = words.at(i).start;
        const NameText::Number number = NameText::numberAt(folded, at, 4);
        if (number.digits != 4 || number.value < firstYear || number.value > lastYear()
            || !NameText::isBoundary(folded, at + 4) || isInDate(folded, at))
            continue;
        const bool opened = at > 0 && folded.at(at - 1) == QLatin1Char('(');
        // Years of a run ("1999-2005") and of a film alike count by the first of the bracket.
        const bool closed = opened && folded.midRef(at, longestYears).contains(QLatin1Char(')'));
        const bool behindRelease = releaseStart >= 0 && at > releaseStart;
        if ((i == 0 && !leadsTheName(folded, at, closed)) || (best.inBrackets && !closed)
            || (best.position >= 0 && behindRelease && !closed))
            continue;
        best = {number.value, at, closed};
    }
    return best;
}

// Cuts brackets off the end whose words all tell of an edition or a release.
QString withoutEdition(const QString &text)
{
    QString result = text.trimmed();
    while (result.endsWith(QLatin1Char(')'))) {
        const int opening = result.lastIndexOf(QLatin1Char('('));
        if (opening <= 0
            || !ReleaseWords::areAll(NameText::folded(result.mid(opening + 1, result.size() - opening - 2))))
            break;
        result = result.left(opening).trimmed();
    }
    return result;
}

} // namespace

NameIdentities NameIdentities::take(const QString &name)
{
    NameIdentities result;
    result.rest = replaceGroups(name, [&result](const QString &content) {
        if (content.size() <= 2 * longestIdentity && readIdentity(content, result.identities))
            return QStringLiteral(" ");
        return QLatin1Char('[') + content + QLatin1Char(']');
    });
    return result;
}

VideoName VideoName::parse(const QString &name)
{
    VideoName result;
    const NameIdentities identified = NameIdentities::take(NameText::sanitized(name));
    result.identities = identified.identities;
    const QString text = withoutGroups(identified.rest).trimmed();
    const QString folded = NameText::folded(text);

    const int releaseStart = ReleaseWords::start(folded);
    const Year year = findYear(folded, releaseStart);
    result.year = year.value;
    result.yearInBrackets = year.inBrackets;
    result.released = releaseStart >= 0;

    const int yearStart = year.position < 0 ? -1 : year.position - (year.inBrackets ? 1 : 0);
    int end = text.size();
    int begin = 0;
    if (yearStart == 0)
        begin = year.inBrackets ? text.indexOf(QLatin1Char(')'), year.position) + 1 : year.position + 4;
    else if (yearStart > 0)
        end = yearStart;
    if (releaseStart > begin)
        end = qMin(end, releaseStart);
    QString title = text.mid(begin, end - begin);
    while (title.endsWith(QLatin1Char('(')) || title.endsWith(QLatin1Char(' ')))
        title.chop(1);
    result.title = NameText::title(withoutEdition(title));
    if (NameText::comparable(result.title).isEmpty())
        result.title = NameText::title(text);
    return result;
}

bool VideoName::isSameAs(const VideoName &other) const
{
    return year == other.year && NameText::comparable(title) == NameText::comparable(other.title);
}
