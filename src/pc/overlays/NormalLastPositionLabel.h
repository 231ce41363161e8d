// Note over the picture that offers the position where the source was left the last time.
//
// Shown for eight seconds with the time and the picture of that position; a click goes there. GUI thread.
#pragma once

#include "PictureNote.h"

#include <QPixmap>
#include <QTimer>

#include <functional>

class NormalLastPositionLabel final : public PictureNote {
    Q_OBJECT

public:
    using Clock = std::function<qint64()>; // milliseconds that only grow
    using Seek = std::function<void(double seconds)>;

    static constexpr int ShownMs = 8000;
    static constexpr int TickMs = 1000;
    static constexpr int TracksDelayMs = 500; // the seek comes first, then the tracks of the position

    // Seeks in the program's player.
    explicit NormalLastPositionLabel(QWidget *parent = nullptr);
    NormalLastPositionLabel(Clock clock, Seek seek, QWidget *parent = nullptr);

    // The stored position and its picture as it stands in the settings, which may be empty or broken. A
    // position of 0 means that there is nothing to offer.
    void setPosition(int seconds, const QByteArray &picture);
    [[nodiscard]] int position() const { return m_seconds; }
    [[nodiscard]] bool hasPicture() const { return !m_picture.isNull(); }

    [[nodiscard]] QSize sizeHint() const override;

    // Looks at the clock; the timer's work.
    void tick();

signals:
    void sig_setupAudioSub();

public slots:
    void slot_showLabel();
    void slot_hideLabel();

protected:
    void paintCard(QPainter &painter) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    [[nodiscard]] QRect pictureRect() const;
    void goToPosition();

    Clock m_clock;
    Seek m_seek;
    QTimer m_timer;
    qint64 m_shownAt{0};
    int m_seconds{0};
    QPixmap m_picture;
    bool m_isPressed{false};
};
