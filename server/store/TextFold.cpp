#include "TextFold.h"

QString TextFold::folded(const QString &text)
{
    // The block of the marks that belong to letters of Latin, Greek and Cyrillic. The marks of other scripts
    // are vowels and must stay.
    constexpr char16_t kFirstMark = 0x0300;
    constexpr char16_t kLastMark = 0x036f;
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    QString plain;
    plain.reserve(decomposed.size());
    for (const QChar character : decomposed) {
        if (character.unicode() < kFirstMark || character.unicode() > kLastMark)
            plain += character;
    }
    // Folding alone leaves the letters that only capitals write as two.
    return plain.toUpper().toCaseFolded();
}

QString TextFold::nameKey(const QString &name)
{
    return name.trimmed().normalized(QString::NormalizationForm_C).toCaseFolded();
}

QString TextFold::containing(const QString &text)
{
    QString pattern = text;
    for (const QLatin1Char special : {QLatin1Char('\\'), QLatin1Char('%'), QLatin1Char('_')})
        pattern.replace(special, QLatin1Char('\\') + QString(special));
    return QLatin1Char('%') + pattern + QLatin1Char('%');
}
