#include "QueueDelegate.h"

#include "QueuePath.h"

#include "ui/FixedDigits.h"
#include "ui/FocusRing.h"
#include "ui/LookTokens.h"
#include "ui/TransportIcons.h"

#include <QAbstractItemView>
#include <QPainter>

namespace {

constexpr int kFrame = 2; // design pixels

} // namespace

QueueDelegate::QueueDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

void QueueDelegate::setMark(const QModelIndex &index, PlayQueue::Mark mark)
{
    m_marked = index;
    m_mark = mark;
}

PlayQueue::Mark QueueDelegate::markOf(const QModelIndex &index) const
{
    // A disc that is folded up stands for the title in it that plays.
    const bool isMarked = index == m_marked || (m_marked.isValid() && index == m_marked.parent());
    return isMarked ? m_mark : PlayQueue::Mark::None;
}

bool QueueDelegate::hasCursor(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    return view != nullptr && view->currentIndex() == index && FocusRing::isOn(view);
}

QString QueueDelegate::iconOf(const QModelIndex &index)
{
    if (index.data(PlayQueueModel::InvalidRole).toBool())
        return QStringLiteral("playlist_gone");
    switch (index.data(PlayQueueModel::KindRole).toInt()) {
    case QueuePath::Disc:
        return QStringLiteral("media_disc");
    case QueuePath::Folder:
        return QStringLiteral("media_folder");
    default:
        break;
    }
    return TransportIcons::nameOfFile(index.data(PlayQueueModel::PathRole).toString());
}

QString QueueDelegate::softText(const QModelIndex &index)
{
    if (index.data(PlayQueueModel::InvalidRole).toBool())
        return tr("Not found");
    return index.data(PlayQueueModel::FolderRole).toString();
}

QString QueueDelegate::sideText(const QModelIndex &index)
{
    const int seconds = index.data(PlayQueueModel::SecondsRole).toInt();
    return seconds > 0 ? FixedDigits::clock(seconds) : index.data(PlayQueueModel::TypeRole).toString();
}

void QueueDelegate::paintIcon(QPainter *painter, const QRect &place, const QString &name, QRgb color)
{
    painter->drawPixmap(place.topLeft(), TransportIcons::pixmap(name, place.width(), Look::color(color)));
}

void QueueDelegate::paintGround(QPainter *painter, const QRectF &place, QRgb color)
{
    painter->setPen(Qt::NoPen);
    painter->setBrush(Look::color(color));
    painter->drawRoundedRect(place, Look::px(Look::CornerControl), Look::px(Look::CornerControl));
}

void QueueDelegate::paintFrame(QPainter *painter, const QRectF &place)
{
    const double line = Look::px(kFrame);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(Look::color(Look::AccentHover), line));
    const double corner = Look::px(Look::CornerControl) - line / 2;
    painter->drawRoundedRect(place.adjusted(line / 2, line / 2, -line / 2, -line / 2), corner, corner);
}
