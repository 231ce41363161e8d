// Slider of the volume, 0 to 100, with the part above 100 percent shown in a colour of its own.
//
// A click jumps and a drag follows at once; the wheel moves by five. GUI thread.
#pragma once

#include <QAbstractSlider>

class VolumeSlider final : public QAbstractSlider {
    Q_OBJECT

public:
    static constexpr int WheelStep = 5;

    explicit VolumeSlider(QWidget *parent = nullptr);

    // Shows what plays; does not count as a move of the user.
    void showVolume(int count, float volume);
    void setMutedLook(bool muted);

    [[nodiscard]] QRectF groove() const;
    [[nodiscard]] int valueAt(int x) const;

signals:
    // The user has moved it.
    void moved(int count);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void moveTo(int count);

    float m_beyond{0.0F}; // what plays above 1.0
    bool m_mutedLook{false};
    bool m_hovered{false};
    int m_wheelRest{0};
};
