#include "OverlayRule.h"

#include <QtMath>

namespace {

QMargins scaled(const QMargins &margins, double ratio)
{
    return {qRound(margins.left() * ratio), qRound(margins.top() * ratio), qRound(margins.right() * ratio),
            qRound(margins.bottom() * ratio)};
}

} // namespace

QRect OverlayRule::placed(const QRect &area, const QSize &wanted, double ratio) const
{
    const QRect inner = area.marginsRemoved(scaled(margins, ratio));
    const QSize size = wanted.boundedTo(inner.size()).expandedTo(QSize(0, 0));
    const int right = inner.left() + inner.width() - size.width();
    const int bottom = inner.top() + inner.height() - size.height();
    const int middle = inner.left() + (inner.width() - size.width()) / 2;
    switch (anchor) {
    case Anchor::Top:
        return {inner.left(), inner.top(), inner.width(), size.height()};
    case Anchor::Bottom:
        return {inner.left(), bottom, inner.width(), size.height()};
    case Anchor::TopLeft:
        return {inner.topLeft(), size};
    case Anchor::TopRight:
        return {QPoint(right, inner.top()), size};
    case Anchor::BottomLeft:
        return {QPoint(inner.left(), bottom), size};
    case Anchor::BottomCentre:
        return {QPoint(middle, bottom), size};
    case Anchor::BottomRight:
        return {QPoint(right, bottom), size};
    case Anchor::Centre:
        return {QPoint(middle, inner.top() + (inner.height() - size.height()) / 2), size};
    case Anchor::RightCentre:
        return {QPoint(right, inner.top() + (inner.height() - size.height()) / 2), size};
    case Anchor::Free:
        break;
    }
    return {};
}
