#include "QShadowWnd.h"

#include <QCoreApplication>
#include <QPainter>
#include <QWheelEvent>

QShadowWnd::QShadowWnd(QWidget *content, QShadowPainter::Set set)
    : QWidget(nullptr,
              Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint)
    , m_content(content)
    , m_painter(set)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
}

void QShadowWnd::slot_updatePosition(QPoint point)
{
    move(point - QPoint(Margins.left(), Margins.top()));
}

void QShadowWnd::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_fixedPosition || !m_content)
        return;
    const QSize around(Margins.left() + Margins.right(), Margins.top() + Margins.bottom());
    resize(m_content->size() + around);
    // A window that is just being shown is on the screen where it has been put only in a moment.
    slot_updatePosition(m_content->isWindow() ? m_content->geometry().topLeft()
                                              : m_content->mapToGlobal(QPoint(0, 0)));
    emit sig_updateContentWidget();
}

void QShadowWnd::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    m_painter.paint(painter, rect());
}

void QShadowWnd::wheelEvent(QWheelEvent *event)
{
    if (m_content)
        QCoreApplication::sendEvent(m_content, event);
}
