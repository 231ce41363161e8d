#include "QDraggableNoBordersWnd.h"

#include "DisplayScale.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>

namespace {

constexpr int T = QDraggableNoBordersWnd::StripThickness;

// One row a strip: its cursor, which sides it moves, and its soft edge.
struct StripRow {
    Qt::CursorShape cursor;
    bool movesLeft, movesTop, movesRight, movesBottom;
    const char *border;
};

constexpr StripRow Rows[] = {
    {Qt::SizeFDiagCursor, false, false, true, true,
     "background: qlineargradient(x1:1, y1:1, x2:0, y2:0, stop:0 #00000000, stop:1 #2a000000)"},
    {Qt::SizeFDiagCursor, true, true, false, false,
     "background: qlineargradient(x1:0, y1:0, x2:1, y2:1, stop:0 #00000000, stop:1 #2a000000)"},
    {Qt::SizeVerCursor, false, true, false, false,
     "background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #00000000, stop:1 #44000000)"},
    {Qt::SizeBDiagCursor, false, true, true, false,
     "background: qlineargradient(x1:1, y1:0, x2:0, y2:1, stop:0 #00000000, stop:1 #2a000000)"},
    {Qt::SizeHorCursor, false, false, true, false,
     "background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #44000000, stop:1 #00000000)"},
    {Qt::SizeVerCursor, false, false, false, true,
     "background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #44000000, stop:1 #00000000)"},
    {Qt::SizeBDiagCursor, true, false, false, true,
     "background: qlineargradient(x1:0, y1:1, x2:1, y2:0, stop:0 #00000000, stop:1 #2a000000)"},
    {Qt::SizeHorCursor, true, false, false, false,
     "background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #00000000, stop:1 #44000000)"}};

const StripRow &rowOf(int mode)
{
    return Rows[mode - 1];
}

QRect stripRect(int mode, const QPoint &topLeft, const QPoint &bottomRight)
{
    const StripRow &row = rowOf(mode);
    const int inside = bottomRight.x() - topLeft.x() - 2 * T;
    const int insideHeight = bottomRight.y() - topLeft.y() - 2 * T;
    const bool isColumn = row.movesLeft || row.movesRight;
    const bool isRow = row.movesTop || row.movesBottom;
    const int x = row.movesLeft ? topLeft.x() : row.movesRight ? bottomRight.x() - T : topLeft.x() + T;
    const int y = row.movesTop ? topLeft.y() : row.movesBottom ? bottomRight.y() - T : topLeft.y() + T;
    return {x, y, isColumn ? T : inside, isRow ? T : insideHeight};
}

// The new place of a side: it never crosses the opposite one and stays a minimum away from it.
int movedSide(int wanted, int opposite, int minimum, bool isUpper)
{
    return isUpper ? qMax(wanted, opposite + minimum) : qMin(wanted, opposite - minimum);
}

} // namespace

QDraggableNoBordersWnd::QDraggableNoBordersWnd(QWidget *target)
    : QObject(target)
    , m_target(target)
{
    for (int mode = BottomRight; mode <= Left; ++mode) {
        Strip &strip = m_strips[static_cast<std::size_t>(mode - 1)];
        strip.window = std::make_unique<QWidget>(nullptr, Qt::Tool | Qt::FramelessWindowHint
                                                              | Qt::WindowDoesNotAcceptFocus
                                                              | Qt::NoDropShadowWindowHint);
        strip.window->setAttribute(Qt::WA_TranslucentBackground);
        strip.window->setAttribute(Qt::WA_ShowWithoutActivating);
        strip.window->setAttribute(Qt::WA_QuitOnClose, false);
        strip.inner = new QWidget(strip.window.get());
        strip.inner->setCursor(rowOf(mode).cursor);
        strip.inner->installEventFilter(this);
    }
    m_target->installEventFilter(this);
    layOutStrips();
}

QDraggableNoBordersWnd::~QDraggableNoBordersWnd() = default;

QWidget *QDraggableNoBordersWnd::strip(DragMode mode) const
{
    return m_strips[static_cast<std::size_t>(mode - 1)].window.get();
}

QWidget *QDraggableNoBordersWnd::inner(DragMode mode) const
{
    return m_strips[static_cast<std::size_t>(mode - 1)].inner;
}

void QDraggableNoBordersWnd::showBorder(bool show)
{
    for (int mode = BottomRight; mode <= Left; ++mode)
        inner(static_cast<DragMode>(mode))
            ->setStyleSheet(show ? QLatin1String(rowOf(mode).border) : QString());
}

void QDraggableNoBordersWnd::hideAll()
{
    for (const Strip &strip : m_strips)
        strip.window->hide();
}

void QDraggableNoBordersWnd::showAll()
{
    slot_resizeBorder();
    for (const Strip &strip : m_strips)
        strip.window->show();
}

QSize QDraggableNoBordersWnd::smallestSize() const
{
    const double ratio = static_cast<double>(DisplayScale::instance()->ratioWidth());
    return {qRound(m_minSize.width() * ratio), qRound(m_minSize.height() * ratio)};
}

bool QDraggableNoBordersWnd::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_target) {
        followTarget(event);
        return false;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton)
            return false;
        for (int mode = BottomRight; mode <= Left; ++mode) {
            if (watched == inner(static_cast<DragMode>(mode)))
                m_dragMode = mode;
        }
        return true;
    case QEvent::MouseMove:
        if (m_dragMode == NoDrag)
            return false;
        drag(static_cast<QMouseEvent *>(event)->globalPos());
        return true;
    case QEvent::MouseButtonRelease:
        m_dragMode = NoDrag;
        slot_resizeBorder();
        return true;
    default:
        return false;
    }
}

void QDraggableNoBordersWnd::drag(const QPoint &globalPos)
{
    const StripRow &row = rowOf(m_dragMode);
    const QSize outer = smallestSize() + QSize(2 * T, 2 * T);
    if (row.movesLeft)
        m_topLeft.setX(movedSide(globalPos.x(), m_bottomRight.x(), outer.width(), false));
    if (row.movesTop)
        m_topLeft.setY(movedSide(globalPos.y(), m_bottomRight.y(), outer.height(), false));
    if (row.movesRight)
        m_bottomRight.setX(movedSide(globalPos.x(), m_topLeft.x(), outer.width(), true));
    if (row.movesBottom)
        m_bottomRight.setY(movedSide(globalPos.y(), m_topLeft.y(), outer.height(), true));
    layOutStrips();
    const QPoint edge(T, T);
    const QSize size(m_bottomRight.x() - m_topLeft.x() - 2 * T, m_bottomRight.y() - m_topLeft.y() - 2 * T);
    m_target->setGeometry({m_topLeft + edge, size});
    emit sig_resize();
}

void QDraggableNoBordersWnd::slot_resizeBorder()
{
    if (m_dragMode != NoDrag)
        return;
    m_topLeft = m_target->pos() - QPoint(T, T);
    m_bottomRight = m_topLeft + QPoint(m_target->width() + 2 * T, m_target->height() + 2 * T);
    layOutStrips();
}

void QDraggableNoBordersWnd::layOutStrips()
{
    for (int mode = BottomRight; mode <= Left; ++mode) {
        const QRect rect = stripRect(mode, m_topLeft, m_bottomRight);
        strip(static_cast<DragMode>(mode))->setGeometry(rect);
        inner(static_cast<DragMode>(mode))->setGeometry({QPoint(0, 0), rect.size()});
    }
}

void QDraggableNoBordersWnd::followTarget(QEvent *event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        slot_resizeBorder();
        break;
    case QEvent::Show:
    case QEvent::WindowStateChange:
        if (m_target->isVisible() && !m_target->isMaximized() && !m_target->isFullScreen()
            && !m_target->isMinimized())
            showAll();
        else
            hideAll();
        break;
    case QEvent::Hide:
    case QEvent::Close:
        hideAll();
        break;
    default:
        break;
    }
}
