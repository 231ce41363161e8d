// Text with figures of one width, so that a running time does not shake; Qt 5 has no switch for a font's own
// tabular figures. Stateless; any painter.
#pragma once

#include <QFontMetrics>
#include <QRect>
#include <QString>

class QPainter;

namespace FixedDigits {

[[nodiscard]] int width(const QFontMetrics &metrics, const QString &text);

// Draws with the painter's font and pen, centred upright, at the side of the rectangle that the alignment
// tells.
void draw(QPainter &painter, const QRect &rect, Qt::Alignment alignment, const QString &text);

// "01:02:03"; a negative time is shown as zero.
[[nodiscard]] QString clock(int seconds);

} // namespace FixedDigits
