// Base of the notes that hover over the picture: a card that rises a little while it comes and sinks while it
// goes.
//
// As an overlay it is placed, faded and stacked by the OverlayHost; without one it fades itself, as an
// ordinary child. GUI thread.
#pragma once

#include "ui/AnimateObject.h"
#include "ui/OverlayWidget.h"

class PictureNote : public OverlayWidget, public AnimateObject {
    Q_OBJECT

public:
    ~PictureNote() override;

    // From 0, gone, to 1, fully there.
    [[nodiscard]] double shown() const { return m_shown; }
    // True from the call that shows the note until the call that hides it.
    [[nodiscard]] bool isOpen() const { return m_isOpen; }

    [[nodiscard]] QPainterPath opaqueShape() const override;
    [[nodiscard]] bool takesMouseAt(const QPoint &position) const override;

    void initAnimate(QString name) override;
    void startAnimate(QString name, bool forward) override;

protected:
    explicit PictureNote(QWidget *parent);

    // Comes, or goes; a note that is on its way turns round.
    void open();
    void dismiss();
    // Where the card stands now, and the size of a note around a card, both in screen pixels.
    [[nodiscard]] QRect card() const;
    [[nodiscard]] static QSize sizeFor(const QSize &card);
    // The ground of the card; a note draws its own things above it.
    virtual void paintCard(QPainter &painter);
    // The card has moved.
    virtual void cardMoved() {}

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setShown(double value);
    [[nodiscard]] QPainterPath shapeOf(const QRectF &rect) const;

    double m_shown{0.0};
    bool m_isOpen{false};
};
