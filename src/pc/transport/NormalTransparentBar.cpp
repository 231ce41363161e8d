#include "NormalTransparentBar.h"

#include "ui/LookTokens.h"

#include <QLinearGradient>
#include <QPainter>

namespace {

constexpr double kDarkest = 0.94;
// Part of the height over which the shade grows to its full strength.
constexpr double kGrowth = 0.62;
constexpr int kStops = 10;

} // namespace

NormalTransparentBar::NormalTransparentBar(Edge edge, int designHeight, QWidget *parent)
    : OverlayWidget(parent)
    , m_edge(edge)
    , m_designHeight(designHeight)
{
}

QSize NormalTransparentBar::sizeHint() const
{
    return {0, Look::px(m_designHeight)};
}

QPainterPath NormalTransparentBar::opaqueShape() const
{
    QPainterPath path;
    const int radius = Look::px(Look::CornerDialog);
    path.addRoundedRect(panelRect(), radius, radius);
    return path;
}

void NormalTransparentBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (isCompact()) {
        painter.fillRect(rect(), Look::color(Look::Panel));
        return;
    }
    // Eased, as a straight gradient shows an edge where it begins.
    QLinearGradient shade(0, m_edge == Edge::Bottom ? 0 : height(), 0, m_edge == Edge::Bottom ? height() : 0);
    for (int i = 0; i <= kStops; ++i) {
        const double part = double(i) / kStops;
        QColor color = Look::color(Look::Deep);
        color.setAlphaF(kDarkest * part * part * (3.0 - 2.0 * part));
        shade.setColorAt(part * kGrowth, color);
    }
    painter.fillRect(rect(), shade);
}
