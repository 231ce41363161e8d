// Combo box of the settings: drawn in the look of the dialog, and deaf to the wheel until it has the
// keyboard, so that turning a page changes no setting. GUI thread.
#pragma once

#include <QComboBox>

class SettingCombo final : public QComboBox {
    Q_OBJECT

public:
    explicit SettingCombo(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }
    void showPopup() override;

signals:
    // The list is about to be seen; who fills it late does it now.
    void aboutToShow();

protected:
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};
