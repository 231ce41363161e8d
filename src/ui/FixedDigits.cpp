#include "FixedDigits.h"

#include "LookTokens.h"

#include <QPainter>

namespace FixedDigits {

namespace {

int digitWidth(const QFontMetrics &metrics)
{
    int widest = 0;
    for (char digit = '0'; digit <= '9'; ++digit)
        widest = qMax(widest, metrics.horizontalAdvance(QLatin1Char(digit)));
    return widest;
}

int cellWidth(const QFontMetrics &metrics, int digit, QChar character)
{
    return character.isDigit() ? digit : metrics.horizontalAdvance(character);
}

} // namespace

int width(const QFontMetrics &metrics, const QString &text)
{
    const int digit = digitWidth(metrics);
    int sum = 0;
    for (const QChar character : text)
        sum += cellWidth(metrics, digit, character);
    return sum;
}

void draw(QPainter &painter, const QRect &rect, Qt::Alignment alignment, const QString &text)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const int digit = digitWidth(metrics);
    int x = rect.left();
    if (alignment & Qt::AlignHCenter)
        x += (rect.width() - width(metrics, text)) / 2;
    else if (alignment & Qt::AlignRight)
        x += rect.width() - width(metrics, text);
    const int baseline = Look::baseline(rect, metrics);
    for (const QChar character : text) {
        const int cell = cellWidth(metrics, digit, character);
        painter.drawText(x + (cell - metrics.horizontalAdvance(character)) / 2, baseline, QString(character));
        x += cell;
    }
}

QString clock(int seconds)
{
    const int whole = qMax(0, seconds);
    const QLatin1Char zero('0');
    return QStringLiteral("%1:%2:%3")
        .arg(whole / 3600, 2, 10, zero)
        .arg(whole / 60 % 60, 2, 10, zero)
        .arg(whole % 60, 2, 10, zero);
}

} // namespace FixedDigits
