// The native child window that the engine draws into.
//
// Qt paints nothing here but black while no source plays, so that no picture of the desktop or of an earlier
// source shows through. It has a native window of its own without making its ancestors native, and it is
// never given to another parent: a new native window would leave the engine with a dead one. GUI thread.
#pragma once

#include <QWidget>

class VideoSurface final : public QWidget {
    Q_OBJECT
public:
    explicit VideoSurface(QWidget *parent = nullptr);

    // The native window; made when asked for the first time and the same from then on.
    [[nodiscard]] quintptr nativeWindow();

    // Size in the display's own pixels, which is what an engine wants.
    [[nodiscard]] QSize deviceSize() const;

    // While a source plays the engine owns every pixel; idle, the surface paints itself black.
    void setPlaying(bool playing);
    [[nodiscard]] bool isPlaying() const { return m_playing; }

    [[nodiscard]] QPaintEngine *paintEngine() const override;

signals:
    void deviceSizeChanged(int width, int height);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_playing{false};
};
