#include "NormalPreviewDelegate.h"

#include "PreviewPlan.h"
#include "PreviewRoles.h"

#include "ui/FixedDigits.h"
#include "ui/LookTokens.h"
#include "ui/TransportIcons.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int MostKiB = 8 * 1024;

// Design pixels.
constexpr int Corner = 6;
constexpr int FrameWidth = 2;
constexpr int TimeSize = 12;
constexpr int PlaceHolderIcon = 24;

QPainterPath rounded(const QRectF &rect)
{
    QPainterPath path;
    path.addRoundedRect(rect, Look::px(Corner), Look::px(Corner));
    return path;
}

} // namespace

NormalPreviewDelegate::NormalPreviewDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_pictures(MostKiB)
{
}

void NormalPreviewDelegate::setCellSize(const QSize &size)
{
    m_cell = size;
}

QSize NormalPreviewDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return m_cell;
}

QPixmap NormalPreviewDelegate::picture(const QModelIndex &index) const
{
    const int second = index.data(PreviewRoles::Seconds).toInt();
    if (const QPixmap *known = m_pictures.object(second))
        return *known;
    auto *made = new QPixmap;
    made->loadFromData(index.data(PreviewRoles::Picture).toByteArray(), "PNG");
    const QPixmap result = *made;
    m_pictures.insert(second, made, qMax(1, result.width() * result.height() * 4 / 1024));
    return result;
}

void NormalPreviewDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    const double ratio = double(DisplayScale::instance()->ratioWidth());
    const bool isHovered = option.state & QStyle::State_MouseOver;
    const bool hasCursor = m_cursorShown && (option.state & QStyle::State_Selected);
    const bool isPlaying = index.data(PreviewRoles::Playing).toBool();
    const QPixmap image = picture(index);
    const QRect place = PreviewPlan::pictureRect(option.rect, ratio);
    const QRect shown = image.isNull() ? place : PreviewPlan::fitted(image.size(), place);

    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QPainterPath shape = rounded(shown);
    if (image.isNull()) {
        painter->fillPath(shape, Look::color(Look::Raised));
        const int side = Look::px(PlaceHolderIcon);
        painter->drawPixmap(
            place.center() - QPoint(side / 2, side / 2),
            TransportIcons::pixmap(QStringLiteral("media_film"), side, Look::color(Look::Mute)));
    } else {
        painter->setClipPath(shape);
        painter->drawPixmap(shown, image);
        painter->setClipping(false);
    }
    const double line = isHovered || hasCursor ? Look::px(FrameWidth) : Look::px(1);
    const QRgb frame = hasCursor || isHovered ? Look::AccentHover : Look::NoteLine;
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(Look::color(frame), line));
    painter->drawPath(rounded(QRectF(shown).adjusted(line / 2, line / 2, -line / 2, -line / 2)));

    painter->setFont(Look::font(TimeSize, isPlaying ? QFont::DemiBold : QFont::Normal));
    painter->setPen(Look::color(isPlaying                ? Look::AccentHover
                                : isHovered || hasCursor ? Look::ControlBright
                                                         : Look::Soft));
    FixedDigits::draw(*painter, PreviewPlan::timeRect(option.rect, ratio), Qt::AlignHCenter,
                      index.data(Qt::DisplayRole).toString());
    painter->restore();
}
