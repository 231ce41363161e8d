// Slider of the dialogs: a thin track with its used part in the accent, a round handle, a jump to where it is
// clicked and a mark at the value that leaves things as they are. GUI thread.
#pragma once

#include <QSlider>

class DialogSlider final : public QSlider {
    Q_OBJECT

public:
    explicit DialogSlider(QWidget *parent = nullptr);

    // The value that the mark stands at.
    void setNeutralValue(int value);
    // Without the mark, where the neutral value is just an end of the range.
    void setMarkShown(bool shown);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    [[nodiscard]] double xOf(int value) const;
    [[nodiscard]] int valueAt(int x) const;

    int m_neutral{0};
    bool m_markShown{true};
};
