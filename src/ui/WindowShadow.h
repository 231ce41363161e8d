// Gives a frameless window a shadow and keeps it where it belongs: around the window and directly below
// it.
//
// The shadow is there while the window is shown in its normal state and the desktop blends windows. Owns the
// shadow's window, not the target; lives as long as the target. GUI thread.
#pragma once

#include "QShadowPainter.h"

#include <QObject>

#include <memory>

class QShadowWnd;
class QWidget;

class WindowShadow final : public QObject {
    Q_OBJECT

public:
    explicit WindowShadow(QWidget *target, QShadowPainter::Set set = QShadowPainter::Set::Window);
    ~WindowShadow() override;

    void hide();
    [[nodiscard]] bool isShown() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    void shown();

private:
    void update();
    void follow();

    QWidget *m_target;
    QShadowPainter::Set m_set;
    std::unique_ptr<QShadowWnd> m_shadow;
};
