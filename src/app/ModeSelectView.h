// The question at start, asked until its answer is to be remembered: PC mode or TV mode.
//
// Modal dialog on the GUI thread. A press on a tile stores the launch mode (the mode itself when the box is
// ticked, "ask" when it is not) and closes; the close button leaves the stored mode as it was.
#pragma once

#include "ui/QMoveableNoBordersWnd.h"

class PictureLabel;
class QCheckBox;
class QFrame;
class SettingsManager;

class ModeSelectView final : public QMoveableNoBordersWnd {
    Q_OBJECT
public:
    explicit ModeSelectView(SettingsManager &store, QWidget *parent = nullptr);

    [[nodiscard]] bool isPcChosen() const { return m_isPcChosen; }
    [[nodiscard]] bool isChosen() const { return m_isChosen; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Tile {
        QFrame *frame{nullptr};
        PictureLabel *plain{nullptr};
        PictureLabel *hover{nullptr};
    };

    Tile makeTile(const char *objectName, const QString &picture, const QString &name, const QString &note);
    void setLit(const Tile &tile, bool lit);
    void choose(bool pc);

    SettingsManager &m_store;
    bool m_isPcChosen{true};
    bool m_isChosen{false};
    Tile m_pc;
    Tile m_tv;
    QCheckBox *m_remember{nullptr};
};
