// Base of the bars along an edge of the picture: a shade that fades into it, or an opaque panel where the
// display cannot blend. Keys pressed on a bar count as pressed on the window. GUI thread.
#pragma once

#include "ui/OverlayWidget.h"

class NormalTransparentBar : public OverlayWidget {
    Q_OBJECT

public:
    enum class Edge { Top, Bottom };

    NormalTransparentBar(Edge edge, int designHeight, QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QPainterPath opaqueShape() const override;

protected:
    // What the opaque form fills.
    [[nodiscard]] virtual QRect panelRect() const { return rect(); }
    void paintEvent(QPaintEvent *event) override;

private:
    Edge m_edge;
    int m_designHeight;
};
