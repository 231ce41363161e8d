#include "TransportButton.h"

#include "ui/FocusRing.h"

#include "ui/LookTokens.h"
#include "ui/TransportIcons.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int kHeatMs = 120;
constexpr int kButtonSide = 38; // design pixels

QColor faded(QRgb value, double part)
{
    QColor color = Look::color(value);
    color.setAlphaF(color.alphaF() * part);
    return color;
}

} // namespace

TransportButton::TransportButton(const QString &icon, int iconSize, QWidget *parent)
    : QAbstractButton(parent)
    , m_icon(icon)
    , m_iconSize(iconSize)
    , m_heat(this, kHeatMs, kHeatMs)
{
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
}

void TransportButton::setPrimary(bool primary)
{
    m_primary = primary;
    update();
}

void TransportButton::setCover(const QPixmap &cover)
{
    m_cover = cover;
    update();
}

QSize TransportButton::sizeHint() const
{
    return {Look::px(kButtonSide), Look::px(kButtonSide)};
}

void TransportButton::enterEvent(QEvent *event)
{
    m_heat.warm(true);
    QAbstractButton::enterEvent(event);
}

void TransportButton::leaveEvent(QEvent *event)
{
    m_heat.warm(false);
    QAbstractButton::leaveEvent(event);
}

void TransportButton::hideEvent(QHideEvent *event)
{
    // A button swapped for its counterpart is cold when it comes back.
    m_heat.cool();
    QAbstractButton::hideEvent(event);
}

void TransportButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    paintGround(painter);
    if (hasCover()) {
        paintCover(painter);
        return;
    }
    const bool lit = isEnabled() && (m_heat.value() > 0.0 || isDown());
    QRgb color = lit ? Look::ControlBright : Look::Control;
    if (isChecked())
        color = lit ? Look::AccentHover : Look::Accent;
    if (!isEnabled())
        color = Look::ControlOff;
    const int side = Look::px(m_iconSize);
    const QPixmap icon = TransportIcons::pixmap(m_icon, side, Look::color(color));
    painter.drawPixmap((width() - side) / 2, (height() - side) / 2, icon);
}

void TransportButton::paintGround(QPainter &painter) const
{
    const double warmth = isEnabled() ? m_heat.value() : 0.0;
    const double radius = m_primary ? height() / 2.0 : Look::px(Look::CornerCard);
    const QRectF ground(rect());
    painter.setPen(Qt::NoPen);
    const auto fill = [&](const QColor &color) {
        painter.setBrush(color);
        painter.drawRoundedRect(ground, radius, radius);
    };
    if (m_primary)
        fill(Look::color(Look::ControlGround));
    if (isDown())
        fill(Look::color(Look::ControlPressed));
    else if (warmth > 0.0)
        fill(faded(Look::ControlHover, warmth));
    if (!FocusRing::isOn(this))
        return;
    const double line = 2.0 * Look::px(1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Look::color(Look::AccentHover), line));
    painter.drawRoundedRect(ground.adjusted(line / 2, line / 2, -line / 2, -line / 2), radius - line / 2,
                            radius - line / 2);
}

void TransportButton::paintCover(QPainter &painter) const
{
    const int inset = Look::px(3);
    const QRect frame = rect().adjusted(inset, inset, -inset, -inset);
    QPainterPath shape;
    shape.addRoundedRect(frame, Look::px(Look::CornerControl), Look::px(Look::CornerControl));
    painter.setClipPath(shape);
    // Cut to the square, never squeezed.
    const int side = qMin(m_cover.width(), m_cover.height());
    painter.drawPixmap(frame, m_cover,
                       QRect((m_cover.width() - side) / 2, (m_cover.height() - side) / 2, side, side));
}
