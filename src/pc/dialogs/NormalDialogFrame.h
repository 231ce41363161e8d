// Frame of the dialogs of PC mode: panel with a title area that moves it, a close button, and a shadow where
// the desktop blends windows.
//
// Owns its shadow window. Escape and the close button both end in slot_close(). GUI thread.
#pragma once

#include "ui/QMoveableNoBordersWnd.h"

#include <QColor>

class QFrame;
class QLabel;
class QPushButton;
class WindowShadow;
class QVBoxLayout;

class NormalDialogFrame : public QMoveableNoBordersWnd {
    Q_OBJECT

public:
    NormalDialogFrame(const QString &title, QWidget *parent);
    ~NormalDialogFrame() override;

    void setTitle(const QString &title);
    [[nodiscard]] QString title() const;

public slots:
    // Ends the dialog as its close button does.
    virtual void slot_close();
    void reject() override;

protected:
    // Where a dialog puts its parts; already has the margins.
    [[nodiscard]] QVBoxLayout *body() const { return m_body; }
    [[nodiscard]] QFrame *panel() const { return m_panel; }
    // A button in the look of the family.
    [[nodiscard]] static QPushButton *makeButton(const QString &text, QWidget *parent);
    // Height of the screen that the dialog opens on, without what the desktop keeps for itself.
    [[nodiscard]] int screenHeight() const;

    // Gives the dialog the size of its parts; before each show, when styles and fonts are known.
    virtual void fit();
    // Lays the parts out and takes their sizes up to the dialog.
    void relayOut();
    // A width, and the height that the parts need at it.
    void resizeTo(int width);

    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void meetShadow();

    QFrame *m_panel{nullptr};
    QLabel *m_title{nullptr};
    QVBoxLayout *m_body{nullptr};
    WindowShadow *m_shadow{nullptr};
    QColor m_shadowEdge{Qt::transparent}; // the shadow where it meets the panel
};
