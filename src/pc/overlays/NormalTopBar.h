// The title bar while something plays: it hovers over the picture instead of taking room from it. GUI thread.
#pragma once

#include "transport/NormalTransparentBar.h"

class NormalTitleBar;

class NormalTopBar final : public NormalTransparentBar {
    Q_OBJECT

public:
    // movedWindow: what a drag of the bar moves.
    explicit NormalTopBar(QWidget *movedWindow);

    [[nodiscard]] NormalTitleBar *titleBar() const { return m_titleBar; }

    // Flush with the edges of the window.
    [[nodiscard]] QPainterPath opaqueShape() const override;
    [[nodiscard]] bool takesMouseAt(const QPoint &position) const override;

protected:
    [[nodiscard]] QRect panelRect() const override;
    void resizeEvent(QResizeEvent *event) override;

private:
    NormalTitleBar *m_titleBar;
};
