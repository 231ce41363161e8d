#include "AnimationWaittingBar.h"

#include <QPainter>
#include <QPauseAnimation>
#include <QSequentialAnimationGroup>
#include <QVariantAnimation>

namespace {

constexpr int StaggerMs = 125; // a circle starts this much after the one before it
constexpr int EnterMs = 125;   // from the left end to the middle field
constexpr int CrossMs = 333;   // across the middle field and out
constexpr int FrameMs = 16;
constexpr double EnterEnd = 0.35;
constexpr double OutLeft = -0.1;
constexpr double OutRight = 1.1;

QString keyOf(int circle)
{
    return QStringLiteral("%1").arg(circle);
}

} // namespace

AnimationWaittingBar::AnimationWaittingBar(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_frameTimer.setInterval(FrameMs);
    connect(&m_frameTimer, &QTimer::timeout, this, qOverload<>(&QWidget::update));
}

AnimationWaittingBar::~AnimationWaittingBar()
{
    deleteAll();
}

void AnimationWaittingBar::setCircleColor(const QColor &color)
{
    m_circleColor = color;
    update();
}

QSize AnimationWaittingBar::sizeHint() const
{
    return {200, 8};
}

double AnimationWaittingBar::circlePosition(int i) const
{
    const auto *group = static_cast<const QSequentialAnimationGroup *>(animate(keyOf(i)));
    if (!group)
        return OutLeft;
    const auto *enter = static_cast<const QVariantAnimation *>(group->animationAt(1));
    const auto *cross = static_cast<const QVariantAnimation *>(group->animationAt(2));
    if (group->currentAnimation() == cross)
        return cross->currentValue().toDouble();
    if (group->currentAnimation() == enter)
        return enter->currentValue().toDouble();
    return OutLeft;
}

void AnimationWaittingBar::initAnimate(QString name)
{
    if (hasAnimate(name))
        return;
    auto group = QSharedPointer<QSequentialAnimationGroup>::create();
    group->addPause(StaggerMs * name.toInt());
    const struct {
        double from, to;
        int durationMs;
        QEasingCurve::Type curve;
    } phases[] = {{OutLeft, EnterEnd, EnterMs, QEasingCurve::OutQuad},
                  {EnterEnd, OutRight, CrossMs, QEasingCurve::Linear}};
    for (const auto &phase : phases) {
        auto *animation = new QVariantAnimation(group.data());
        animation->setStartValue(phase.from);
        animation->setEndValue(phase.to);
        animation->setDuration(phase.durationMs);
        animation->setEasingCurve(phase.curve);
        group->addAnimation(animation);
    }
    // All circles share one period, so that their distances stay as they are from round to round.
    group->addPause(StaggerMs * (CircleCount - 1 - name.toInt()));
    group->setLoopCount(-1);
    connect(group.data(), &QAbstractAnimation::finished, this, &AnimationWaittingBar::SLOT_animationFinish);
    setAnimate(name, group);
}

void AnimationWaittingBar::startAnimate(QString name, bool forward)
{
    QAbstractAnimation *animation = animate(name);
    if (!animation)
        return;
    animation->stop();
    if (forward)
        animation->start();
}

void AnimationWaittingBar::SLOT_start()
{
    m_isStarted = true;
    if (isVisible())
        setMoving(true);
}

void AnimationWaittingBar::SLOT_stop()
{
    if (!m_isStarted)
        return;
    m_isStarted = false;
    setMoving(false);
}

void AnimationWaittingBar::SLOT_animationFinish()
{
    m_frameTimer.stop();
    update();
}

void AnimationWaittingBar::setMoving(bool moving)
{
    if (moving) {
        for (int i = 0; i < CircleCount; ++i)
            runAnimate(keyOf(i), true);
        m_frameTimer.start();
    } else {
        stopAll();
        m_frameTimer.stop();
        update();
    }
}

void AnimationWaittingBar::paintEvent(QPaintEvent *)
{
    if (!m_isStarted)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double diameter = qMin(height(), 6);
    const double y = height() / 2.0;
    for (int i = 0; i < CircleCount; ++i) {
        const double position = circlePosition(i);
        if (position <= 0.0 || position >= 1.0)
            continue;
        // Dots come and go softly at both ends.
        QColor color = m_circleColor;
        color.setAlphaF(color.alphaF() * qMin(1.0, 5.0 * qMin(position, 1.0 - position)));
        painter.setBrush(color);
        painter.drawEllipse(QPointF(position * width(), y), diameter / 2, diameter / 2);
    }
}

void AnimationWaittingBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_isStarted)
        setMoving(true);
}

void AnimationWaittingBar::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_isStarted)
        setMoving(false);
}
