// Borderless box that says that something is loading, on a dark translucent ground. GUI thread.
#pragma once

#include <QDialog>

class AnimationWaittingBar;

class NormalLoadingDlg final : public QDialog {
    Q_OBJECT

public:
    explicit NormalLoadingDlg(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    AnimationWaittingBar *m_bar;
};
