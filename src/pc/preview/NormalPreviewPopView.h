// The small picture above the pointer on the seek slider, with its time under it.
//
// Follows the pointer and stays inside the window. The time is always the pointer's; the picture is the
// nearest one that has come for it, and a source without pictures shows its time alone. As an overlay it
// moves itself (OverlayRule::Anchor::Free). GUI thread.
#pragma once

#include "ui/OverlayWidget.h"

#include <QPixmap>
#include <QTimer>

class NormalPreviewPopView final : public OverlayWidget {
    Q_OBJECT

public:
    // A picture that stands for another moment is shown no longer than this.
    static constexpr int StaleMs = 400;
    // And an empty place for a picture no longer than this; a source may never answer.
    static constexpr int WaitMs = 1500;

    explicit NormalPreviewPopView(QWidget *parent = nullptr);

    [[nodiscard]] QString timeText() const { return m_time; }
    [[nodiscard]] bool hasPicture() const { return !m_picture.isNull(); }
    // The card without its shadow, in the widget's own pixels.
    [[nodiscard]] QRect card() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QPainterPath opaqueShape() const override;
    [[nodiscard]] bool takesMouseAt(const QPoint &) const override { return false; }

public slots:
    // time: "00:00:00"; pt: a point on the slider's upper edge, in global coordinates.
    void slot_showSeekView(QString time, QPoint pt);
    void slot_closeSeek();

    // What has come for a position. One that is further from the pointer than the picture shown is left out.
    void showPicture(int positionMs, const QImage &picture);
    // There is none for the position.
    void showNoPicture(int positionMs);
    // Another source: its pictures are not those shown.
    void reset();

signals:
    // The pointer is at this position: its picture is wanted.
    void sig_pictureWanted(int positionMs);

protected:
    void compactChanged() override;
    void paintEvent(QPaintEvent *event) override;

private:
    // What the card has room for besides the time.
    enum class Form { Picture, Waiting, TimeOnly };

    [[nodiscard]] QSize pictureSize() const;
    [[nodiscard]] QSize cardSize() const;
    [[nodiscard]] int shadow() const;
    void setForm(Form form);
    void wait();
    void place();

    Form m_form{Form::Waiting};
    QString m_time;
    QPoint m_point;
    int m_wantedMs{0};
    int m_shownMs{0}; // the position that the picture was asked for
    QPixmap m_picture;
    QSize m_lastSize; // of the source's pictures, for the place of the next one
    QTimer m_stale;
};
