// Seek slider of the transport bar, in whole seconds.
//
// A click jumps, a drag shows where it would lead and commits at its release; Escape takes a drag back. The
// keyboard moves by ten seconds. GUI thread.
#pragma once

#include "SeekTrack.h"

#include "ui/HoverHeat.h"

#include <QAbstractSlider>

class NormalProgressBar final : public QAbstractSlider {
    Q_OBJECT

public:
    static constexpr int StepSeconds = 10;
    static constexpr int PageSeconds = 60;

    explicit NormalProgressBar(QWidget *parent = nullptr);

    // 0 when the length is unknown: then there is nothing to seek.
    void setTotal(int seconds);
    [[nodiscard]] int total() const { return maximum(); }
    // The engine's position; a drag is not disturbed.
    void setPosition(int seconds);
    // Starts in seconds; drawn as cuts.
    void setChapterMarks(const QVector<int> &seconds);
    [[nodiscard]] const QVector<int> &chapterMarks() const { return m_chapters; }

    // Geometry of the moment.
    [[nodiscard]] SeekTrack track() const;

signals:
    // The time under the pointer; pt is the point on the slider's upper edge, in global coordinates.
    void sig_mouseHoverd(QString time, QPoint pt);
    void sig_mouseLeaved();
    // The user has chosen a position.
    void sig_valueChanged(int nValue);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void hover(int x);
    void cancelDrag();
    void choose(int seconds);

    QVector<int> m_chapters;
    HoverHeat m_heat;
    int m_hoverX{-1};
    int m_beforeDrag{0};
};
