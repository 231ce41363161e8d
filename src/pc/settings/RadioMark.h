// Radio button in the look of the dialogs. GUI thread.
#pragma once

#include <QRadioButton>

class RadioMark final : public QRadioButton {
    Q_OBJECT

public:
    explicit RadioMark(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    [[nodiscard]] bool hitButton(const QPoint &position) const override;
};
