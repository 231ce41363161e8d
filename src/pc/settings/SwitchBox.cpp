#include "SwitchBox.h"

#include "ui/LookTokens.h"

#include <QPainter>

namespace {

// Design pixels.
constexpr QSize Track{38, 22};
constexpr int Ring = 3; // around the track
constexpr int KnobGap = 3;

constexpr QRgb TrackOff = 0xff3a4855;
constexpr QRgb TrackOffHover = 0xff46586a;
constexpr QRgb TrackDisabled = 0xff28323b;

} // namespace

SwitchBox::SwitchBox(QWidget *parent)
    : QCheckBox(parent)
{
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize SwitchBox::sizeHint() const
{
    return {Look::px(Track.width() + 2 * Ring), Look::px(Track.height() + 2 * Ring)};
}

bool SwitchBox::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void SwitchBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double ring = Look::px(Ring);
    const QRectF track = QRectF(rect()).adjusted(ring, ring, -ring, -ring);
    const double radius = track.height() / 2;
    if (hasFocus()) {
        painter.setPen(QPen(Look::color(Look::AccentHover), Look::px(2)));
        const double half = Look::px(2) / 2.0;
        const QRectF frame = QRectF(rect()).adjusted(half, half, -half, -half);
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(frame, frame.height() / 2, frame.height() / 2);
    }
    painter.setPen(Qt::NoPen);
    const QRgb off = underMouse() ? TrackOffHover : TrackOff;
    const QRgb on = underMouse() ? Look::AccentHover : Look::Accent;
    const double inset = hasFocus() ? Look::px(1) : 0;
    QColor ground = Look::color(isChecked() ? on : off);
    if (!isEnabled()) {
        ground = Look::color(isChecked() ? Look::Accent : TrackDisabled);
        ground.setAlpha(isChecked() ? 90 : 255);
    }
    painter.setBrush(ground);
    painter.drawRoundedRect(track.adjusted(inset, inset, -inset, -inset), radius, radius);
    const double gap = Look::px(KnobGap);
    const double knob = track.height() - 2 * gap;
    const bool isRight = isChecked() != (layoutDirection() == Qt::RightToLeft);
    const double x = isRight ? track.right() - gap - knob : track.left() + gap;
    painter.setBrush(Look::color(isEnabled() ? Look::ControlBright : Look::Mute));
    painter.drawEllipse(QRectF(x, track.top() + gap, knob, knob));
}
