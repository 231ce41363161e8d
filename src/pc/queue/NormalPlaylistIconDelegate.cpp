#include "NormalPlaylistIconDelegate.h"

#include "ui/FixedDigits.h"
#include "ui/LookTokens.h"

#include <QPainter>

namespace {

// Design pixels.
constexpr int kWidest = 180;
constexpr int kNarrowest = 120;
constexpr int kInset = 6;
constexpr int kNameLine = 22;
constexpr int kIcon = 32;
constexpr int kMark = 24;
constexpr int kChipHeight = 18;
constexpr int kChipInset = 6;
constexpr int kNamePixels = 12;
constexpr int kChipPixels = 12;

} // namespace

NormalPlaylistIconDelegate::NormalPlaylistIconDelegate(QObject *parent)
    : QueueDelegate(parent)
    , m_tile(tileFor(2 * Look::px(kWidest)))
{
}

QSize NormalPlaylistIconDelegate::tileFor(int wallWidth)
{
    const int columns = qMax(1, (wallWidth + Look::px(kWidest) - 1) / Look::px(kWidest));
    const int width = qMax(Look::px(kNarrowest), wallWidth / columns);
    const int picture = width - 2 * Look::px(kInset);
    return {width, picture * 9 / 16 + Look::px(kNameLine) + 2 * Look::px(kInset)};
}

QSize NormalPlaylistIconDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return m_tile;
}

void NormalPlaylistIconDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                       const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const int inset = Look::px(kInset);
    const QRect tile = option.rect.adjusted(1, 1, -1, -1);
    const QRect picture(option.rect.left() + inset, option.rect.top() + inset,
                        option.rect.width() - 2 * inset, (option.rect.width() - 2 * inset) * 9 / 16);
    const QRect name(picture.left(), picture.bottom() + 1, picture.width(), Look::px(kNameLine));
    const bool isInvalid = index.data(PlayQueueModel::InvalidRole).toBool();
    const PlayQueue::Mark mark = markOf(index);
    const bool isMarked = mark != PlayQueue::Mark::None;
    const auto centred = [&picture](int side) {
        return QRect(picture.left() + (picture.width() - side) / 2,
                     picture.top() + (picture.height() - side) / 2, side, side);
    };

    if (option.state.testFlag(QStyle::State_Selected))
        paintGround(painter, tile, isHovered(index) ? Look::ControlPressed : Look::ControlHover);
    else if (isHovered(index))
        paintGround(painter, tile, Look::ControlGround);
    paintGround(painter, picture, Look::Raised);
    paintIcon(painter, centred(Look::px(isMarked ? kMark : kIcon)),
              !isMarked                          ? iconOf(index)
              : mark == PlayQueue::Mark::Playing ? QStringLiteral("playlist_playing")
                                                 : QStringLiteral("playlist_paused"),
              isMarked    ? Look::AccentHover
              : isInvalid ? Look::Beyond
                          : Look::Soft);

    painter->setFont(Look::font(kChipPixels));
    painter->setPen(Look::color(Look::Soft));
    const QRect chip(picture.left() + Look::px(kChipInset),
                     picture.bottom() - Look::px(kChipHeight) - Look::px(kChipInset) / 2,
                     picture.width() - 2 * Look::px(kChipInset), Look::px(kChipHeight));
    FixedDigits::draw(*painter, chip, Qt::AlignRight,
                      isInvalid
                          ? painter->fontMetrics().elidedText(softText(index), Qt::ElideRight, chip.width())
                          : sideText(index));

    painter->setFont(Look::font(kNamePixels, isMarked ? QFont::DemiBold : QFont::Normal));
    painter->setPen(Look::color(isMarked ? Look::AccentHover : isInvalid ? Look::Soft : Look::Text));
    painter->drawText(
        name.left(), Look::baseline(name, painter->fontMetrics()),
        painter->fontMetrics().elidedText(index.data().toString(), Qt::ElideRight, name.width()));
    if (hasCursor(option, index))
        paintFrame(painter, tile);
    painter->restore();
}
