#include "WindowShadow.h"

#include "QShadowWnd.h"

#include "platform/Compositing.h"
#include "platform/WindowStacking.h"

#include <QEvent>
#include <QWidget>

WindowShadow::WindowShadow(QWidget *target, QShadowPainter::Set set)
    : QObject(target)
    , m_target(target)
    , m_set(set)
{
    target->installEventFilter(this);
}

WindowShadow::~WindowShadow() = default;

bool WindowShadow::isShown() const
{
    return m_shadow && m_shadow->isVisible();
}

void WindowShadow::hide()
{
    if (m_shadow)
        m_shadow->hide();
}

bool WindowShadow::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
    case QEvent::WindowActivate:
        // The window's own part comes first: it is mapped and in its new state after this event.
        QMetaObject::invokeMethod(this, &WindowShadow::update, Qt::QueuedConnection);
        break;
    case QEvent::Move:
    case QEvent::Resize:
        follow();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowShadow::update()
{
    const bool wanted = m_target->isWindow() && m_target->isVisible() && !m_target->isMaximized()
                        && !m_target->isFullScreen() && !m_target->isMinimized() && Compositing::isActive();
    if (!wanted) {
        hide();
        return;
    }
    if (!m_shadow) {
        m_shadow = std::make_unique<QShadowWnd>(m_target, m_set);
        m_shadow->setWindowFlag(Qt::WindowTransparentForInput);
    }
    if (!m_shadow->isVisible()) {
        m_shadow->show();
        emit shown();
    }
    follow();
    WindowStacking::placeBelow(m_shadow->winId(), m_target->winId());
}

void WindowShadow::follow()
{
    if (!isShown())
        return;
    m_shadow->resize(m_target->size().grownBy(QShadowWnd::Margins));
    m_shadow->slot_updatePosition(m_target->pos());
}
