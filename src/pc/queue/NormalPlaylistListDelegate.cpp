#include "NormalPlaylistListDelegate.h"

#include "ui/FixedDigits.h"
#include "ui/LookTokens.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTreeView>

namespace {

// Design pixels.
constexpr int kRowHeight = 48;
constexpr int kSide = 8;   // from the edges of the list to the ground of a row
constexpr int kInset = 10; // from there to what stands on it
constexpr int kIcon = 20;
constexpr int kExpand = 20;
constexpr int kGap = 12;
constexpr int kNameLine = 20;
constexpr int kSoftLine = 17;
constexpr int kNamePixels = 13;
constexpr int kSoftPixels = 12;

} // namespace

NormalPlaylistListDelegate::NormalPlaylistListDelegate(QObject *parent)
    : QueueDelegate(parent)
{
}

QSize NormalPlaylistListDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {0, Look::px(kRowHeight)};
}

NormalPlaylistListDelegate::Parts NormalPlaylistListDelegate::partsOf(const QRect &row,
                                                                      const QModelIndex &index, int sideWidth)
{
    Parts parts;
    parts.ground = row.adjusted(Look::px(kSide), 1, -Look::px(kSide), -1);
    const bool isTitle = index.parent().isValid();
    const auto square = [&parts](int left, int side) {
        return QRect(left, parts.ground.top() + (parts.ground.height() - side + 1) / 2, side, side);
    };
    int left = parts.ground.left() + Look::px(kInset);
    const int iconSide = Look::px(kIcon);
    // A title stands under the name of its disc.
    if (isTitle)
        left += iconSide + Look::px(kGap);
    parts.icon = square(left, iconSide);
    left += iconSide + Look::px(kGap);

    int right = parts.ground.right() + 1 - Look::px(kInset);
    if (index.data(PlayQueueModel::MayExpandRole).toBool()) {
        right -= Look::px(kExpand);
        parts.expand = square(right, Look::px(kExpand));
        right -= Look::px(kGap) / 2;
    }
    parts.side = QRect(right - sideWidth, parts.ground.top(), sideWidth, parts.ground.height());
    const int textRight = right - (sideWidth > 0 ? sideWidth + Look::px(kGap) : 0);
    const bool hasSoft = !softText(index).isEmpty();
    const int lines = Look::px(kNameLine) + (hasSoft ? Look::px(kSoftLine) : 0);
    const int top = parts.ground.top() + (parts.ground.height() - lines) / 2;
    parts.name = QRect(left, top, qMax(0, textRight - left), Look::px(kNameLine));
    if (hasSoft)
        parts.soft = QRect(left, parts.name.bottom() + 1, parts.name.width(), Look::px(kSoftLine));
    return parts;
}

QRect NormalPlaylistListDelegate::expandRect(const QRect &row, const QModelIndex &index)
{
    const QRect mark = partsOf(row, index, 0).expand;
    // A little more than what is drawn, for the hand.
    const int more = Look::px(kInset);
    return mark.isEmpty() ? mark : mark.adjusted(-more, -more, more, more);
}

void NormalPlaylistListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->setFont(Look::font(kSoftPixels));
    const QString side = sideText(index);
    const Parts parts = partsOf(option.rect, index, FixedDigits::width(painter->fontMetrics(), side));
    const bool isInvalid = index.data(PlayQueueModel::InvalidRole).toBool();
    const PlayQueue::Mark mark = markOf(index);
    const bool isMarked = mark != PlayQueue::Mark::None;

    if (option.state.testFlag(QStyle::State_Selected))
        paintGround(painter, parts.ground, isHovered(index) ? Look::ControlPressed : Look::ControlHover);
    else if (isHovered(index))
        paintGround(painter, parts.ground, Look::ControlGround);

    QString icon = iconOf(index);
    if (isMarked)
        icon = mark == PlayQueue::Mark::Playing ? QStringLiteral("playlist_playing")
                                                : QStringLiteral("playlist_paused");
    // Titles share the picture of their disc, which stands above them once.
    if (isMarked || !index.parent().isValid())
        paintIcon(painter, parts.icon, icon,
                  isMarked    ? Look::AccentHover
                  : isInvalid ? Look::Beyond
                              : Look::Soft);

    painter->setPen(Look::color(Look::Soft));
    FixedDigits::draw(*painter, parts.side, Qt::AlignRight, side);
    if (!parts.soft.isEmpty())
        painter->drawText(
            parts.soft.left(), Look::baseline(parts.soft, painter->fontMetrics()),
            painter->fontMetrics().elidedText(softText(index), Qt::ElideMiddle, parts.soft.width()));
    if (!parts.expand.isEmpty()) {
        const auto *tree = qobject_cast<const QTreeView *>(option.widget);
        const bool isOpen = tree != nullptr && tree->isExpanded(index);
        paintIcon(painter, parts.expand,
                  isOpen ? QStringLiteral("playlist_collapse") : QStringLiteral("playlist_expand"),
                  isHovered(index) ? Look::Text : Look::Soft);
    }

    painter->setFont(Look::font(kNamePixels, isMarked ? QFont::DemiBold : QFont::Normal));
    painter->setPen(Look::color(isMarked ? Look::AccentHover : isInvalid ? Look::Soft : Look::Text));
    painter->drawText(
        parts.name.left(), Look::baseline(parts.name, painter->fontMetrics()),
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, parts.name.width()));
    if (hasCursor(option, index))
        paintFrame(painter, parts.ground);
    painter->restore();
}

bool NormalPlaylistListDelegate::editorEvent(QEvent *event, QAbstractItemModel *,
                                             const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const bool isMouse = event->type() == QEvent::MouseButtonPress
                         || event->type() == QEvent::MouseButtonRelease
                         || event->type() == QEvent::MouseButtonDblClick;
    if (!isMouse)
        return false;
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (mouse->button() != Qt::LeftButton || !expandRect(option.rect, index).contains(mouse->pos()))
        return false;
    if (event->type() == QEvent::MouseButtonRelease)
        emit sig_changeExpandState(index);
    return true;
}
