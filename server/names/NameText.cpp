#include "NameText.h"

namespace NameText {

namespace {

constexpr int longestSuffix = 6;

bool isInvisible(QChar character)
{
    const ushort code = character.unicode();
    return (code >= 0x200b && code <= 0x200f) || (code >= 0x202a && code <= 0x202e)
           || (code >= 0x2060 && code <= 0x206f) || code == 0xfeff || code == 0xfffe || code == 0xffff;
}

bool isControl(QChar character)
{
    const ushort code = character.unicode();
    return code < 0x20 || (code >= 0x7f && code < 0xa0);
}

// Dots between single letters belong to the word.
bool isAcronymDot(const QString &text, int position)
{
    const auto singleLetterAt = [&text](int at) {
        return at >= 0 && at < text.size() && text.at(at).isLetter() && (at == 0 || isBoundary(text, at - 1))
               && isBoundary(text, at + 1);
    };
    if (text.at(position) != QLatin1Char('.') || !singleLetterAt(position - 1))
        return false;
    const bool followed = singleLetterAt(position + 1);
    const bool precededByDot = position >= 2 && text.at(position - 2) == QLatin1Char('.');
    return followed || (precededByDot && singleLetterAt(position - 3));
}

// Whether characters other than the space stand between words; then every hyphen, dot or underscore is one of
// them.
bool hasSpaces(const QString &text)
{
    return text.contains(QLatin1Char(' '));
}

bool isTrimmed(QChar character, bool atStart)
{
    if (character.isSpace() || QStringView(u"-_,;:+~|\u2013\u2014").contains(character))
        return true;
    return character == QLatin1Char('.') && atStart;
}

QString trimmed(const QString &text)
{
    int first = 0;
    int end = text.size();
    while (first < end && isTrimmed(text.at(first), true))
        ++first;
    while (end > first && isTrimmed(text.at(end - 1), false))
        --end;
    return text.mid(first, end - first);
}

} // namespace

bool isSeparator(QChar character)
{
    switch (character.unicode()) {
    case '.':
    case '_':
    case '-':
    case 0x2010:
    case 0x2013:
    case 0x2014:
    case 0x3000:
        return true;
    default:
        return character.isSpace();
    }
}

bool isBracket(QChar character)
{
    return QStringView(u"()[]{}\u3010\u3011\u300c\u300d").contains(character);
}

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

bool isBoundary(const QString &text, int position)
{
    return position < 0 || position >= text.size() || !text.at(position).isLetterOrNumber();
}

QString folded(const QString &text)
{
    QString result = text;
    for (QChar &character : result)
        character = character.toLower();
    return result;
}

QString sanitized(const QString &name)
{
    QString result;
    const int length = qMin(name.size(), maximumLength);
    result.reserve(length);
    for (int i = 0; i < length; ++i) {
        const QChar character = name.at(i);
        if (character.isHighSurrogate() && i + 1 < length && name.at(i + 1).isLowSurrogate()) {
            result += character;
            result += name.at(++i);
        } else if (isControl(character) || character.isSpace()) {
            result += QLatin1Char(' ');
        } else if (!character.isSurrogate() && !isInvisible(character)) {
            result += character;
        }
    }
    return result;
}

QVector<Word> words(const QString &text)
{
    QVector<Word> result;
    for (int i = 0; i < text.size();) {
        int end = i;
        while (end < text.size() && !isSeparator(text.at(end)) && !isBracket(text.at(end)))
            ++end;
        if (end > i)
            result.append({i, end - i});
        i = end + 1;
    }
    return result;
}

Number numberAt(const QString &text, int position, int maximumDigits)
{
    Number number;
    for (int i = position; i >= 0 && i < text.size() && isDigit(text.at(i)); ++i) {
        if (number.digits == maximumDigits || number.digits == 9)
            return {};
        number.value = number.value * 10 + (text.at(i).unicode() - '0');
        ++number.digits;
    }
    return number;
}

int skipSeparators(const QString &text, int position, int maximum)
{
    for (int skipped = 0; skipped < maximum && position < text.size() && isSeparator(text.at(position));
         ++skipped)
        ++position;
    return position;
}

bool startsWithAt(const QString &text, int position, const QString &part)
{
    return position >= 0 && QStringView(text).mid(qMin(position, text.size())).startsWith(part);
}

QString title(const QString &text)
{
    const bool spaced = hasSpaces(trimmed(text));
    const bool dotted = !spaced && (text.contains(QLatin1Char('.')) || text.contains(QLatin1Char('_')));
    // One or two hyphens belong to a word ("Spider-Man"), a row of them stands for spaces.
    const bool hyphened = !spaced && !dotted && text.count(QLatin1Char('-')) >= 3;
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const bool parted = character == QLatin1Char('_')
                            || (character == QLatin1Char('.') && dotted && !isAcronymDot(text, i))
                            || (character == QLatin1Char('-') && hyphened);
        if (parted || character.isSpace()) {
            if (!result.endsWith(QLatin1Char(' ')))
                result += QLatin1Char(' ');
        } else {
            result += character;
            // The last dot of "E.G.the.Visitor" ends the letters and a word at once.
            if (character == QLatin1Char('.') && dotted && !isBoundary(text, i + 2))
                result += QLatin1Char(' ');
        }
    }
    return trimmed(result);
}

QString comparable(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (const QChar character : text) {
        if (character.isLetterOrNumber() || character.isSurrogate() || character.isMark())
            result += character.toLower();
        else if (character != QLatin1Char('\'') && character.unicode() != 0x2019 && !result.isEmpty()
                 && !result.endsWith(QLatin1Char(' ')))
            result += QLatin1Char(' ');
    }
    if (result.endsWith(QLatin1Char(' ')))
        result.chop(1);
    return result;
}

QString withoutSuffix(const QString &fileName)
{
    const int dot = fileName.lastIndexOf(QLatin1Char('.'));
    const int length = fileName.size() - dot - 1;
    if (dot <= 0 || length == 0 || length > longestSuffix)
        return fileName;
    for (int i = dot + 1; i < fileName.size(); ++i)
        if (!fileName.at(i).isLetterOrNumber())
            return fileName;
    return fileName.left(dot);
}

} // namespace NameText
