#include "NormalTopBar.h"

#include "NormalTitleBar.h"

namespace {

// Design pixels: the shade reaches below the title itself.
constexpr int kHeight = 72;

} // namespace

NormalTopBar::NormalTopBar(QWidget *movedWindow)
    : NormalTransparentBar(Edge::Top, kHeight, movedWindow)
    , m_titleBar(new NormalTitleBar(this))
{
    m_titleBar->setObjectName(QStringLiteral("overlayTitleBar"));
    m_titleBar->setMovedWindow(movedWindow);
}

QPainterPath NormalTopBar::opaqueShape() const
{
    QPainterPath path;
    path.addRect(panelRect());
    return path;
}

bool NormalTopBar::takesMouseAt(const QPoint &position) const
{
    return panelRect().contains(position);
}

QRect NormalTopBar::panelRect() const
{
    return {0, 0, width(), m_titleBar->height()};
}

void NormalTopBar::resizeEvent(QResizeEvent *event)
{
    NormalTransparentBar::resizeEvent(event);
    m_titleBar->setGeometry(panelRect());
}
