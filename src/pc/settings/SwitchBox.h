// A check box drawn as a switch. GUI thread.
#pragma once

#include <QCheckBox>

class SwitchBox final : public QCheckBox {
    Q_OBJECT

public:
    explicit SwitchBox(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    [[nodiscard]] bool hitButton(const QPoint &position) const override;
};
