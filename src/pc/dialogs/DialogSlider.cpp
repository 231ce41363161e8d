#include "DialogSlider.h"

#include "ui/LookTokens.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

// Design pixels.
constexpr int Height = 28;
constexpr int HandleRadius = 7;
constexpr int FocusRadius = 11;
constexpr int TrackHeight = 4;
constexpr int MarkHeight = 10;

} // namespace

DialogSlider::DialogSlider(QWidget *parent)
    : QSlider(Qt::Horizontal, parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setPageStep(10);
}

void DialogSlider::setNeutralValue(int value)
{
    m_neutral = value;
    update();
}

void DialogSlider::setMarkShown(bool shown)
{
    m_markShown = shown;
    update();
}

QSize DialogSlider::sizeHint() const
{
    return {Look::px(220), Look::px(Height)};
}

double DialogSlider::xOf(int value) const
{
    const double left = Look::px(FocusRadius);
    const double span = width() - 2 * left;
    const int range = qMax(1, maximum() - minimum());
    const double share = double(value - minimum()) / range;
    return left + span * (layoutDirection() == Qt::RightToLeft ? 1.0 - share : share);
}

int DialogSlider::valueAt(int x) const
{
    const double left = Look::px(FocusRadius);
    const double span = qMax(1.0, width() - 2 * left);
    const double share = qBound(0.0, (x - left) / span, 1.0);
    return minimum()
           + qRound((layoutDirection() == Qt::RightToLeft ? 1.0 - share : share) * (maximum() - minimum()));
}

void DialogSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double middle = height() / 2.0;
    const double thick = Look::px(TrackHeight);
    const double start = xOf(minimum());
    const double end = xOf(maximum());
    const double handle = xOf(sliderPosition());
    const auto track = [&](double from, double to, QRgb color) {
        painter.setBrush(Look::color(color));
        painter.drawRoundedRect(
            QRectF(QPointF(qMin(from, to), middle - thick / 2), QPointF(qMax(from, to), middle + thick / 2)),
            thick / 2, thick / 2);
    };
    track(start, end, underMouse() ? Look::TrackHover : Look::Track);
    const double mark = xOf(m_neutral);
    if (m_markShown) {
        painter.setBrush(Look::color(Look::Mute));
        painter.drawRoundedRect(QRectF(mark - Look::px(1), middle - Look::px(MarkHeight) / 2.0, Look::px(2),
                                       Look::px(MarkHeight)),
                                Look::px(1), Look::px(1));
    }
    // The way from the neutral value tells which side the picture was moved to.
    track(mark, handle, isEnabled() ? Look::Accent : Look::Mute);

    if (hasFocus() || isSliderDown()) {
        QColor halo = Look::color(Look::AccentHover);
        halo.setAlpha(90);
        painter.setBrush(halo);
        painter.drawEllipse(QPointF(handle, middle), Look::px(FocusRadius), Look::px(FocusRadius));
    }
    painter.setBrush(Look::color(isEnabled() ? Look::ControlBright : Look::Mute));
    painter.drawEllipse(QPointF(handle, middle), Look::px(HandleRadius), Look::px(HandleRadius));
}

void DialogSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(true);
    setSliderPosition(valueAt(event->pos().x()));
    event->accept();
}

void DialogSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (isSliderDown())
        setSliderPosition(valueAt(event->pos().x()));
    event->accept();
}

void DialogSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        setSliderDown(false);
    event->accept();
}

void DialogSlider::enterEvent(QEvent *event)
{
    QSlider::enterEvent(event);
    update();
}

void DialogSlider::leaveEvent(QEvent *event)
{
    QSlider::leaveEvent(event);
    update();
}
