// Base of the widgets that hover over the picture.
//
// An overlay says when it wants to be seen and, for a display that cannot blend, which of its pixels are
// there at all; the OverlayHost makes it a window, places it, fades it and cuts it. Without a host it is an
// ordinary widget, which is how it is drawn and tested. GUI thread.
#pragma once

#include <QPainterPath>
#include <QWidget>

class OverlayWidget : public QWidget {
    Q_OBJECT

public:
    explicit OverlayWidget(QWidget *parent = nullptr);

    // What the overlay itself asks for; a host fades it.
    void appear() { setWanted(true); }
    void disappear() { setWanted(false); }
    [[nodiscard]] bool isWanted() const { return m_wanted; }

    // Without a compositor every pixel shown must be opaque: no scrim, and the window is cut to
    // opaqueShape().
    void setCompact(bool compact);
    [[nodiscard]] bool isCompact() const { return m_compact; }
    [[nodiscard]] virtual QPainterPath opaqueShape() const;

    // False where the overlay is only shade: there clicks belong to the picture.
    [[nodiscard]] virtual bool takesMouseAt(const QPoint &position) const;

    void setHosted(bool hosted) { m_hosted = hosted; }

signals:
    void sig_wantedChanged(bool wanted);
    // The wanted size or the shape is another.
    void sig_shapeChanged();

protected:
    // Corners of opaqueShape() as a whole card, in design pixels.
    [[nodiscard]] virtual int cornerRadius() const;
    virtual void compactChanged() {}
    // The ground of a small note: translucent with a thin line, or an opaque panel where the display cannot
    // blend. Leaves the painter with smooth edges.
    void paintGround(QPainter &painter) const;

private:
    void setWanted(bool wanted);

    bool m_wanted{false};
    bool m_compact{false};
    bool m_hosted{false};
};
