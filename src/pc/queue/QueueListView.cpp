#include "QueueListView.h"

#include "NormalPlaylistListDelegate.h"
#include "PlayQueueModel.h"

#include "ui/LookTokens.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QHoverEvent>
#include <QMimeData>
#include <QPainter>

namespace {

// Design pixels.
constexpr int kDropLine = 2;
constexpr int kDropInset = 10;

} // namespace

QueueListView::QueueListView(PlayQueueModel *model, QueueDelegate *delegate, QWidget *parent)
    : QTreeView(parent)
    , m_queue(model)
    , m_delegate(delegate)
{
    setObjectName(QStringLiteral("playlistRows"));
    setModel(model);
    setItemDelegate(delegate);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIndentation(0);
    setUniformRowHeights(true);
    setExpandsOnDoubleClick(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    setContextMenuPolicy(Qt::CustomContextMenu);
    viewport()->setAutoFillBackground(false);
}

void QueueListView::drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                            const QModelIndex &index) const
{
    QStyleOptionViewItem option = options;
    option.widget = this;
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    m_delegate->paint(painter, option, index);
}

void QueueListView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (m_dropRow < 0)
        return;
    int y = 0;
    if (m_dropRow < m_queue->sourceCount()) {
        y = visualRect(m_queue->index(m_dropRow)).top();
    } else if (m_queue->sourceCount() > 0) {
        QModelIndex last = m_queue->index(m_queue->sourceCount() - 1);
        if (isExpanded(last) && m_queue->rowCount(last) > 0)
            last = m_queue->index(m_queue->rowCount(last) - 1, 0, last);
        y = visualRect(last).bottom() + 1;
    }
    const int line = Look::px(kDropLine);
    const int inset = Look::px(kDropInset);
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Look::color(Look::Accent));
    painter.drawRoundedRect(QRectF(inset, qBound(0, y - line / 2, viewport()->height() - line),
                                   viewport()->width() - 2 * inset, line),
                            line / 2.0, line / 2.0);
}

void QueueListView::setHovered(const QModelIndex &index)
{
    const QModelIndex before = m_delegate->hovered();
    if (before == index)
        return;
    m_delegate->setHovered(index);
    for (const QModelIndex &changed : {before, index}) {
        if (changed.isValid())
            viewport()->update(visualRect(changed));
    }
}

bool QueueListView::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove:
        setHovered(indexAt(static_cast<QHoverEvent *>(event)->pos()));
        break;
    case QEvent::Leave:
    case QEvent::HoverLeave:
    case QEvent::Wheel:
        setHovered({});
        break;
    default:
        break;
    }
    return QTreeView::viewportEvent(event);
}

// ---- drag and drop

void QueueListView::startDrag(Qt::DropActions)
{
    QMimeData *rows = m_queue->mimeData(selectedIndexes());
    if (rows == nullptr)
        return;
    // The rows are moved by the drop itself; the view would delete them here.
    auto *drag = new QDrag(this);
    drag->setMimeData(rows);
    drag->exec(Qt::MoveAction);
    setDropRow(-1);
}

bool QueueListView::takes(const QDropEvent &event) const
{
    return !m_queue->rowsOf(event.mimeData()).isEmpty() || event.mimeData()->hasUrls();
}

int QueueListView::dropRowAt(const QPoint &point) const
{
    const QModelIndex index = indexAt(point);
    if (!index.isValid())
        return m_queue->sourceCount();
    // Between the titles of a disc there is no place.
    if (index.parent().isValid())
        return index.parent().row() + 1;
    const bool isLowerHalf = point.y() > visualRect(index).center().y();
    return index.row() + (isLowerHalf ? 1 : 0);
}

void QueueListView::setDropRow(int row)
{
    if (m_dropRow == row)
        return;
    m_dropRow = row;
    viewport()->update();
}

void QueueListView::dragEnterEvent(QDragEnterEvent *event)
{
    if (!takes(*event)) {
        event->ignore();
        return;
    }
    setState(DraggingState);
    event->acceptProposedAction();
}

void QueueListView::dragMoveEvent(QDragMoveEvent *event)
{
    // Scrolls near the edges; what it thinks of the drop does not count.
    QTreeView::dragMoveEvent(event);
    if (!takes(*event)) {
        event->ignore();
        return;
    }
    setDropRow(dropRowAt(event->pos()));
    event->acceptProposedAction();
}

void QueueListView::dragLeaveEvent(QDragLeaveEvent *event)
{
    setDropRow(-1);
    QTreeView::dragLeaveEvent(event);
}

void QueueListView::dropEvent(QDropEvent *event)
{
    stopAutoScroll();
    setState(NoState);
    setDropRow(-1);
    if (!takes(*event)) {
        event->ignore();
        return;
    }
    const int before = dropRowAt(event->pos());
    const QVector<int> rows = m_queue->rowsOf(event->mimeData());
    if (rows.isEmpty()) {
        event->acceptProposedAction();
        emit urlsDropped(event->mimeData()->urls(), before);
        return;
    }
    event->setDropAction(Qt::MoveAction);
    event->accept();
    emit rowsDropped(rows, before);
}

void QueueListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    // Two fast clicks on the mark fold twice and play nothing.
    if (index.isValid()
        && NormalPlaylistListDelegate::expandRect(visualRect(index), index).contains(event->pos()))
        mousePressEvent(event);
    else if (index.isValid() && event->button() == Qt::LeftButton)
        // The tree itself would look for its own mark in front of a title, where there is none.
        emit doubleClicked(index);
}
