// Where an overlay stands over the picture, and how high.
#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>

struct OverlayRule {
    enum class Anchor {
        Top,    // along the whole upper edge, as high as the overlay wants to be
        Bottom, // along the whole lower edge
        TopLeft,
        TopRight,
        BottomLeft,
        BottomCentre,
        BottomRight,
        Centre,
        RightCentre,
        Free // the overlay moves itself; it is only kept above the picture and hidden with it
    };

    Anchor anchor{Anchor::Centre};
    // Distance from the edges, in design pixels.
    QMargins margins;
    // Of two overlays the one with the larger level lies in front.
    int level{0};

    // The overlay's rectangle in an area. Both in screen pixels; margins are multiplied by the ratio. What is
    // larger than the area is cut to it.
    [[nodiscard]] QRect placed(const QRect &area, const QSize &wanted, double ratio) const;
};
