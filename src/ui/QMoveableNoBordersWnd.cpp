#include "QMoveableNoBordersWnd.h"

#include <QMouseEvent>

QMoveableNoBordersWnd::QMoveableNoBordersWnd(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags | Qt::Dialog | Qt::FramelessWindowHint)
{
}

void QMoveableNoBordersWnd::mousePressEvent(QMouseEvent *event)
{
    m_dragging = event->pos().y() <= m_titleHeight;
    m_dragOffset = event->globalPos() - pos();
    QDialog::mousePressEvent(event);
}

void QMoveableNoBordersWnd::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_dragging)
        return;
    if (event->buttons().testFlag(Qt::LeftButton))
        move(event->globalPos() - m_dragOffset);
    QDialog::mouseMoveEvent(event);
}

void QMoveableNoBordersWnd::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragging = false;
    QDialog::mouseReleaseEvent(event);
}
