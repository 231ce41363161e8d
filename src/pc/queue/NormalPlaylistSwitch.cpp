#include "NormalPlaylistSwitch.h"

#include "NormalPlaylistView.h"

#include "ui/LookTokens.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

const QString AnimateKey = QStringLiteral("animate");

// Design pixels.
constexpr int kWidth = 24;
constexpr int kRestWidth = 14;
constexpr int kHeight = 72;
constexpr int kChevronWidth = 5;
constexpr int kChevronHeight = 10;
constexpr double kStroke = 1.6;

constexpr double kRestOpacity = 0.55;
constexpr double kFullOpacity = 0.96;

} // namespace

NormalPlaylistSwitch::NormalPlaylistSwitch(QWidget *parent)
    : OverlayWidget(parent)
{
    setCursor(Qt::PointingHandCursor);
    retranslate();
    hide();
}

NormalPlaylistSwitch::~NormalPlaylistSwitch()
{
    // Before the widget goes: the animation calls back into it.
    deleteAll();
}

OverlayRule NormalPlaylistSwitch::rule(bool isPanelOpen, int level)
{
    OverlayRule rule = NormalPlaylistView::rule(level);
    rule.anchor = OverlayRule::Anchor::RightCentre;
    rule.margins.setRight(isPanelOpen ? NormalPlaylistView::designWidth() : 0);
    return rule;
}

void NormalPlaylistSwitch::retranslate()
{
    const QString text = m_isPanelOpen ? tr("Close the playlist") : tr("Open the playlist");
    setToolTip(text);
    setAccessibleName(text);
}

void NormalPlaylistSwitch::slot_setPanelOpen(bool bOpen)
{
    m_isPanelOpen = bOpen;
    retranslate();
    update();
}

QSize NormalPlaylistSwitch::sizeHint() const
{
    return {Look::px(kWidth), Look::px(kHeight)};
}

QRectF NormalPlaylistSwitch::tabRect() const
{
    // Cut to its shape, it would have to be cut anew at each step.
    const double part = isCompact() ? 1.0 : m_warmth;
    const double wide = Look::px(kRestWidth) + part * (Look::px(kWidth) - Look::px(kRestWidth));
    return {width() - wide, 0.0, wide, double(height())};
}

QPainterPath NormalPlaylistSwitch::opaqueShape() const
{
    // Round at the left; the right side lies at an edge.
    const double corner = Look::px(Look::CornerCard);
    const QRectF tab = tabRect();
    QPainterPath round;
    round.addRoundedRect(tab.adjusted(0, 0, corner, 0), corner, corner);
    QPainterPath bounds;
    bounds.addRect(tab);
    return round.intersected(bounds);
}

void NormalPlaylistSwitch::initAnimate(QString name)
{
    initFade(name, [this](double warmth) { setWarmth(warmth); });
}

void NormalPlaylistSwitch::startAnimate(QString name, bool forward)
{
    startFade(name, m_warmth, forward, {Look::FadeInMs, Look::FadeOutMs});
}

void NormalPlaylistSwitch::setWarmth(double value)
{
    m_warmth = value;
    update();
}

void NormalPlaylistSwitch::enterEvent(QEvent *event)
{
    runAnimate(AnimateKey, true);
    OverlayWidget::enterEvent(event);
}

void NormalPlaylistSwitch::leaveEvent(QEvent *event)
{
    runAnimate(AnimateKey, false);
    OverlayWidget::leaveEvent(event);
}

void NormalPlaylistSwitch::hideEvent(QHideEvent *event)
{
    // Cold when it comes back.
    stopAll();
    m_isPressed = false;
    setWarmth(0.0);
    OverlayWidget::hideEvent(event);
}

void NormalPlaylistSwitch::mousePressEvent(QMouseEvent *event)
{
    m_isPressed = event->button() == Qt::LeftButton;
    update();
}

void NormalPlaylistSwitch::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isClick = m_isPressed && event->button() == Qt::LeftButton && rect().contains(event->pos());
    m_isPressed = false;
    update();
    if (isClick)
        emit sig_switched(!m_isPanelOpen);
}

void NormalPlaylistSwitch::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor ground = Look::color(m_isPressed ? Look::Raised : Look::Panel);
    if (!isCompact())
        ground.setAlphaF(kRestOpacity + m_warmth * (kFullOpacity - kRestOpacity));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawPath(opaqueShape());

    const QRectF tab = tabRect();
    const double wide = Look::px(kChevronWidth) / 2.0 * (m_isPanelOpen ? -1.0 : 1.0);
    const double high = Look::px(kChevronHeight) / 2.0;
    const QPointF middle = tab.center();
    QPainterPath chevron(middle + QPointF(wide, -high));
    chevron.lineTo(middle - QPointF(wide, 0));
    chevron.lineTo(middle + QPointF(wide, high));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Look::color(m_warmth > 0.0 ? Look::ControlBright : Look::Control),
                        kStroke * Look::px(1), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(chevron);
}
