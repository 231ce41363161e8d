#include "OverlayWidget.h"

#include "LookTokens.h"

#include <QPainter>

OverlayWidget::OverlayWidget(QWidget *parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    // The window is never the active one, and its parts explain themselves all the same.
    setAttribute(Qt::WA_AlwaysShowToolTips);
}

void OverlayWidget::setWanted(bool wanted)
{
    if (m_wanted == wanted)
        return;
    m_wanted = wanted;
    if (!m_hosted)
        setVisible(wanted);
    emit sig_wantedChanged(wanted);
}

void OverlayWidget::setCompact(bool compact)
{
    if (m_compact == compact)
        return;
    m_compact = compact;
    compactChanged();
    update();
    emit sig_shapeChanged();
}

QPainterPath OverlayWidget::opaqueShape() const
{
    QPainterPath path;
    const int radius = Look::px(cornerRadius());
    path.addRoundedRect(rect(), radius, radius);
    return path;
}

bool OverlayWidget::takesMouseAt(const QPoint &position) const
{
    return rect().contains(position);
}

int OverlayWidget::cornerRadius() const
{
    return Look::CornerCard;
}

void OverlayWidget::paintGround(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    if (isCompact()) {
        painter.fillRect(rect(), Look::color(Look::Panel));
        return;
    }
    const int radius = Look::px(cornerRadius());
    painter.setPen(QPen(Look::color(Look::NoteLine), 1));
    painter.setBrush(Look::color(Look::Note));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}
