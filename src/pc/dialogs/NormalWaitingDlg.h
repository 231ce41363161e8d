// Box for a job that takes its time: a text, a mark that moves while the box is open, and a way out. "Cancel"
// only tells the wish: who runs the job ends it and then the box. GUI thread.
#pragma once

#include "NormalDialogFrame.h"

class AnimationWaittingBar;
class QLabel;

class NormalWaitingDlg final : public NormalDialogFrame {
    Q_OBJECT

public:
    explicit NormalWaitingDlg(QWidget *parent = nullptr);

    void setText(const QString &text);
    [[nodiscard]] QString text() const;

signals:
    void signal_cancelClicked();
    // By the close button, Escape or the window system.
    void signal_closeClicked();

public slots:
    void slot_close() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QLabel *m_text{nullptr};
    AnimationWaittingBar *m_bar{nullptr};
};
