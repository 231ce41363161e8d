#include "TitleMatch.h"

#include <QSet>

#include <cstdlib>

namespace {

constexpr int kYearsApart = 1;

// Accents may be left out in these scripts; in others a mark makes another letter.
bool hasAccents(QChar letter)
{
    const QChar::Script script = letter.script();
    return script == QChar::Script_Latin || script == QChar::Script_Greek || script == QChar::Script_Cyrillic;
}

bool isApostrophe(QChar character)
{
    return character == QLatin1Char('\'') || character == QLatin1Char('`') || character == QChar(0x2019)
           || character == QChar(0x2018);
}

// Letters and digits alone, words parted by one space.
QString words(const QString &text)
{
    QString result;
    QChar base;
    for (const QChar character : text) {
        if (character.isMark()) {
            if (!hasAccents(base))
                result += character;
        } else if (character.isLetterOrNumber() || character.isSurrogate()) {
            base = character;
            result += character.toCaseFolded();
        } else if (character == QLatin1Char('&')) {
            result += QLatin1String(" and ");
        } else if (!isApostrophe(character)) {
            result += QLatin1Char(' ');
        }
    }
    return result.simplified();
}

QSet<QString> titlesOf(const QString &title, const QString &originalTitle)
{
    QSet<QString> titles{TitleMatch::folded(title), TitleMatch::folded(originalTitle)};
    titles.remove(QString());
    return titles;
}

} // namespace

QString TitleMatch::folded(const QString &title)
{
    const QString result = words(title.normalized(QString::NormalizationForm_KD));
    // There are films whose titles are punctuation.
    return result.isEmpty() ? title.simplified() : result;
}

std::optional<ProviderMatch> TitleMatch::pick(const QVector<ProviderMatch> &matches, const Description &known)
{
    const QSet<QString> wanted = titlesOf(known.title, known.originalTitle);
    QVector<ProviderMatch> agreeing;
    for (const ProviderMatch &match : matches) {
        if (titlesOf(match.title, match.originalTitle).intersects(wanted))
            agreeing << match;
    }
    if (known.year == 0)
        return agreeing.size() == 1 ? std::make_optional(agreeing.first()) : std::nullopt;
    for (int apart = 0; apart <= kYearsApart; ++apart) {
        for (const ProviderMatch &match : agreeing) {
            if (match.year > 0 && std::abs(match.year - known.year) == apart)
                return match;
        }
    }
    return std::nullopt;
}
