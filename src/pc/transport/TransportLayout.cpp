#include "TransportLayout.h"

#include <QtMath>

namespace {

enum class Side { Left, Right };

struct Row {
    TransportPlace place;
    Side side;
    int width;  // design pixels; 0 for the time text
    int height; // design pixels
    int gap;    // design pixels before it, away from the side
    int drop;   // the first to go has 1; 0 always stays
};

constexpr Row kRows[] = {
    {TransportPlace::MusicPixmap, Side::Left, 46, 46, 0, 5},
    {TransportPlace::PreviousChapter, Side::Left, 38, 38, 2, 7},
    {TransportPlace::Rewind, Side::Left, 38, 38, 2, 6},
    {TransportPlace::PlayPause, Side::Left, 46, 46, 2, 0},
    {TransportPlace::FastForward, Side::Left, 38, 38, 2, 6},
    {TransportPlace::NextChapter, Side::Left, 38, 38, 2, 7},
    {TransportPlace::Stop, Side::Left, 38, 38, 2, 0},
    {TransportPlace::PreviousFrame, Side::Left, 38, 38, 2, 1},
    {TransportPlace::NextFrame, Side::Left, 38, 38, 2, 1},
    {TransportPlace::Time, Side::Left, 0, 38, 12, 8},
    {TransportPlace::FullScreen, Side::Right, 38, 38, 0, 0},
    {TransportPlace::Playlist, Side::Right, 38, 38, 2, 9},
    {TransportPlace::Preview, Side::Right, 38, 38, 2, 3},
    {TransportPlace::ThreeD, Side::Right, 38, 38, 2, 2},
    {TransportPlace::VolumeSlider, Side::Right, 104, 38, 8, 4},
    {TransportPlace::Volume, Side::Right, 38, 38, 0, 0},
};
constexpr int kLastDrop = 9;

// Design pixels.
constexpr int kSide = 12; // the outer pictures end where the groove ends
constexpr int kCompactSide = 24;
constexpr int kGrooveSide = 24; // from the edge to the end of the groove
constexpr int kCompactGrooveSide = 36;
constexpr int kGrooveInset = 10; // the slider is wider than its groove, for the knob
constexpr int kGrooveCentre = 58;
constexpr int kSliderHeight = 24;
constexpr int kRowCentre = 95;
constexpr int kMiddleGap = 16;
constexpr int kPanelTop = 40;
constexpr int kPanelSide = 16;
constexpr int kPanelBottom = 126;
constexpr int kBubbleBottom = 42;
constexpr int kCompactBubbleBottom = 34;
constexpr int kGrip = 14;

std::size_t indexOf(TransportPlace place)
{
    return static_cast<std::size_t>(place);
}

} // namespace

TransportLayout TransportLayout::arranged(const QSize &size, double ratio, bool compact, int timeWidth,
                                          const PlaceSet &absent)
{
    const auto px = [ratio](int design) { return qRound(design * ratio); };
    TransportLayout layout;
    layout.m_size = size;
    layout.m_ratio = ratio;
    const int shift = size.height() - px(DesignHeight); // everything stands on the lower edge
    if (compact)
        layout.m_panel = QRect(px(kPanelSide), shift + px(kPanelTop), size.width() - 2 * px(kPanelSide),
                               px(kPanelBottom) - px(kPanelTop));
    else
        layout.m_panel = QRect(0, shift + px(kGrooveCentre) - px(kSliderHeight) / 2, size.width(),
                               size.height() - shift - px(kGrooveCentre) + px(kSliderHeight) / 2);
    const int grooveSide = px(compact ? kCompactGrooveSide : kGrooveSide) - px(kGrooveInset);
    layout.m_progress = QRect(grooveSide, shift + px(kGrooveCentre) - px(kSliderHeight) / 2,
                              size.width() - 2 * grooveSide, px(kSliderHeight));

    const int side = px(compact ? kCompactSide : kSide);
    const auto widthOf = [&](const Row &row) { return row.width > 0 ? px(row.width) : timeWidth; };
    PlaceSet gone = absent;
    for (int drop = 1; drop <= kLastDrop + 1; ++drop) {
        int sum = 2 * side + px(kMiddleGap);
        for (const Row &row : kRows) {
            if (!gone.test(indexOf(row.place)))
                sum += px(row.gap) + widthOf(row);
        }
        if (sum <= size.width())
            break;
        for (const Row &row : kRows) {
            if (row.drop == drop)
                gone.set(indexOf(row.place));
        }
    }

    int left = side;
    int right = size.width() - side;
    for (const Row &row : kRows) {
        if (gone.test(indexOf(row.place)))
            continue;
        const int width = widthOf(row);
        const int height = px(row.height);
        const int top = shift + px(kRowCentre) - height / 2;
        QRect &rect = layout.m_places[indexOf(row.place)];
        if (row.side == Side::Left) {
            left += px(row.gap);
            rect = QRect(left, top, width, height);
            left += width;
        } else {
            right -= px(row.gap) + width;
            rect = QRect(right, top, width, height);
        }
    }
    return layout;
}

QRect TransportLayout::bubble(int x, const QSize &size) const
{
    const auto px = [this](int design) { return qRound(design * m_ratio); };
    const bool compact = m_panel.left() > 0;
    const int bottom =
        m_size.height() - px(DesignHeight) + px(compact ? kCompactBubbleBottom : kBubbleBottom);
    const int margin = px(8);
    const int left =
        qBound(margin, x - size.width() / 2, qMax(margin, m_size.width() - margin - size.width()));
    return {QPoint(left, bottom - size.height()), size};
}

QRect TransportLayout::grip() const
{
    const int side = qRound(kGrip * m_ratio);
    return {m_size.width() - side, m_size.height() - side, side, side};
}
