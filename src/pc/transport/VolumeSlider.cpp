#include "VolumeSlider.h"

#include "ui/FocusRing.h"

#include "ui/LookTokens.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWheelEvent>
#include <QtMath>

namespace {

constexpr int kFull = 100;
constexpr int kWheelNotch = 120;
// Design pixels.
constexpr int kInset = 8;
constexpr int kGroove = 4;
constexpr int kKnob = 6;

} // namespace

VolumeSlider::VolumeSlider(QWidget *parent)
    : QAbstractSlider(parent)
{
    setOrientation(Qt::Horizontal);
    setRange(0, kFull);
    setSingleStep(1);
    setPageStep(WheelStep);
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
}

void VolumeSlider::showVolume(int count, float volume)
{
    m_beyond = qBound(0.0F, volume - 1.0F, 1.0F);
    setValue(count);
    update();
}

void VolumeSlider::setMutedLook(bool muted)
{
    m_mutedLook = muted;
    update();
}

QRectF VolumeSlider::groove() const
{
    const int height = Look::px(kGroove);
    const int inset = Look::px(kInset);
    return {double(inset), double(qFloor((this->height() - height) / 2.0)),
            double(qMax(0, width() - 2 * inset)), double(height)};
}

int VolumeSlider::valueAt(int x) const
{
    const QRectF line = groove();
    return line.width() > 0 ? qBound(0, qRound((x - line.left()) * kFull / line.width()), kFull) : 0;
}

void VolumeSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF line = groove();
    const double x = line.left() + line.width() * value() / kFull;
    QPainterPath shape;
    shape.addRoundedRect(line, line.height() / 2, line.height() / 2);
    painter.save();
    painter.setClipPath(shape);
    painter.fillRect(line, Look::color(Look::Track));
    painter.fillRect(QRectF(line.left(), line.top(), x - line.left(), line.height()),
                     Look::color(m_mutedLook ? Look::TrackHover : Look::Control));
    if (m_beyond > 0 && !m_mutedLook) {
        const double part = line.width() * double(m_beyond);
        painter.fillRect(QRectF(line.right() - part, line.top(), part, line.height()),
                         Look::color(Look::Beyond));
    }
    painter.restore();
    const bool focus = FocusRing::isOn(this);
    if (!m_hovered && !isSliderDown() && !focus)
        return;
    const double radius = Look::px(kKnob);
    painter.setBrush(Look::color(m_beyond > 0 ? Look::Beyond : Look::ControlBright));
    painter.drawEllipse(QPointF(x, line.center().y()), radius, radius);
    if (focus) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Look::color(Look::AccentHover), 2.0 * Look::px(1)));
        painter.drawEllipse(QPointF(x, line.center().y()), radius + Look::px(2), radius + Look::px(2));
    }
}

void VolumeSlider::moveTo(int count)
{
    const int bounded = qBound(0, count, kFull);
    // At the end of the way a louder volume set by key stays.
    if (bounded == value())
        return;
    m_beyond = 0;
    setValue(bounded);
    update();
    emit moved(bounded);
}

void VolumeSlider::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(true);
    moveTo(valueAt(event->x()));
}

void VolumeSlider::mouseMoveEvent(QMouseEvent *event)
{
    if (isSliderDown())
        moveTo(valueAt(event->x()));
    else
        event->ignore();
}

void VolumeSlider::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !isSliderDown()) {
        event->ignore();
        return;
    }
    setSliderDown(false);
    update();
}

void VolumeSlider::keyPressEvent(QKeyEvent *event)
{
    int step = 0;
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Down)
        step = -1;
    else if (event->key() == Qt::Key_Right || event->key() == Qt::Key_Up)
        step = 1;
    if (step == 0 || event->modifiers() != Qt::NoModifier) {
        event->ignore();
        return;
    }
    moveTo(value() + step);
}

void VolumeSlider::wheelEvent(QWheelEvent *event)
{
    // Touch pads send parts of a notch.
    m_wheelRest += event->angleDelta().y();
    const int notches = m_wheelRest / kWheelNotch;
    m_wheelRest -= notches * kWheelNotch;
    if (notches != 0)
        moveTo(value() + notches * WheelStep);
    event->accept();
}

void VolumeSlider::enterEvent(QEvent *event)
{
    m_hovered = true;
    update();
    QAbstractSlider::enterEvent(event);
}

void VolumeSlider::leaveEvent(QEvent *event)
{
    m_hovered = false;
    m_wheelRest = 0;
    update();
    QAbstractSlider::leaveEvent(event);
}
