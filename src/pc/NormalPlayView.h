// What PC mode shows while something plays: the native surface of the engine, and an activity mark over it
// until the first picture is there. GUI thread.
#pragma once

#include <QWidget>

class AnimationWaittingBar;
class VideoSurface;

class NormalPlayView final : public QWidget {
    Q_OBJECT
public:
    explicit NormalPlayView(QWidget *parent = nullptr);

    [[nodiscard]] VideoSurface *surface() const { return m_surface; }

    void showWaiting(bool shown);
    [[nodiscard]] bool isWaitingShown() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void placeWaiting();

    VideoSurface *m_surface{nullptr};
    QWidget *m_waitPanel{nullptr};
    AnimationWaittingBar *m_waitBar{nullptr};
};
