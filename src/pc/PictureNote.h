// Base of the notes that hover over the picture: a card that fades in and out and takes no activation.
//
// Works as a window of its own above the video and as a child widget. Where the desktop does not blend
// windows the card is opaque and the window is cut to its shape. GUI thread.
#pragma once

#include "ui/AnimateObject.h"

#include <QWidget>

class PictureNote : public QWidget, public AnimateObject {
    Q_OBJECT

public:
    ~PictureNote() override;

    // From 0, gone, to 1, fully there.
    [[nodiscard]] double shown() const { return m_shown; }
    // True from the call that shows the note until the call that hides it.
    [[nodiscard]] bool isOpen() const { return m_isOpen; }

    void initAnimate(QString name) override;
    void startAnimate(QString name, bool forward) override;

protected:
    explicit PictureNote(QWidget *parent);

    // Fades in, or out and then hides; a note that is on its way turns round.
    void open();
    void dismiss();
    // The card inside the widget's rectangle.
    [[nodiscard]] QRect card() const { return rect(); }
    // Ground of the card, drawn below what a note draws itself.
    virtual void paintCard(QPainter &painter);

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void setShown(double value);
    void cutToShape();

    double m_shown{0.0};
    bool m_isOpen{false};
};
