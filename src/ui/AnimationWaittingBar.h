// Activity mark: ten dots that run across, speed up and fade in turn.
//
// Nothing moves while the bar is stopped or hidden. GUI thread only.
#pragma once

#include "AnimateObject.h"

#include <QColor>
#include <QTimer>
#include <QWidget>

class QSequentialAnimationGroup;
class QVariantAnimation;

class AnimationWaittingBar final : public QWidget, public AnimateObject {
    Q_OBJECT
    Q_PROPERTY(QColor circleColor READ circleColor WRITE setCircleColor)

public:
    static constexpr int CircleCount = 10;

    explicit AnimationWaittingBar(QWidget *parent = nullptr);
    ~AnimationWaittingBar() override;

    [[nodiscard]] QColor circleColor() const { return m_circleColor; }
    void setCircleColor(const QColor &color);
    [[nodiscard]] bool isRunning() const { return m_isStarted; }
    // Where circle i stands, 0 at the left end and 1 at the right; below 0 before it enters.
    [[nodiscard]] double circlePosition(int i) const;

    void initAnimate(QString name) override;
    void startAnimate(QString name, bool forward) override;

    [[nodiscard]] QSize sizeHint() const override;

public slots:
    void SLOT_start();
    void SLOT_stop();
    void SLOT_animationFinish();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void setMoving(bool moving);

    QColor m_circleColor{0x17, 0x9c, 0xf1};
    QTimer m_frameTimer;
    bool m_isStarted{false};
};
