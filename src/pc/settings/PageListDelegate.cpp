#include "PageListDelegate.h"

#include "ui/LookTokens.h"

#include <QPainter>
#include <QPainterPath>

namespace {

// Design pixels.
constexpr int RowHeight = 40;
constexpr int Gap = 2;
constexpr int TextLeft = 14;
constexpr int Bar = 3;
constexpr int Corner = 6;

constexpr QRgb Selected = 0xff16303f;
constexpr QRgb Hover = 0xff1d262e;

} // namespace

PageListDelegate::PageListDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

QSize PageListDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width(), Look::px(RowHeight)};
}

void PageListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isHot = option.state.testFlag(QStyle::State_MouseOver);
    const QRectF row = QRectF(option.rect).adjusted(0, 0, 0, -Look::px(Gap));
    const double corner = Look::px(Corner);
    if (isSelected || isHot) {
        QPainterPath shape;
        shape.addRoundedRect(row, corner, corner);
        painter->fillPath(shape, Look::color(isSelected ? Selected : Hover));
        if (isSelected) {
            painter->setClipPath(shape);
            painter->fillRect(QRectF(row.topLeft(), QSizeF(Look::px(Bar), row.height())),
                              Look::color(Look::Accent));
            painter->setClipping(false);
        }
    }
    if (isSelected && option.widget && option.widget->window()->focusWidget() == option.widget) {
        const double line = Look::px(2);
        painter->setPen(QPen(Look::color(Look::AccentHover), line));
        painter->drawRoundedRect(row.adjusted(line / 2, line / 2, -line / 2, -line / 2), corner, corner);
    }
    painter->setFont(Look::font(13));
    painter->setPen(Look::color(isSelected ? Look::ControlBright : isHot ? Look::Text : Look::Soft));
    const QRect place = row.toRect().adjusted(Look::px(TextLeft), 0, -Look::px(Corner), 0);
    painter->drawText(
        place, Qt::AlignVCenter | Qt::AlignLeft,
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, place.width()));
    painter->restore();
}
