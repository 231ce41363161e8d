// Geometry of the transport bar: one function that painting, placing and hit testing share.
#pragma once

#include <QRect>
#include <QSize>

#include <array>
#include <bitset>

enum class TransportPlace : std::size_t {
    MusicPixmap,
    PreviousChapter,
    Rewind,
    PlayPause,
    FastForward,
    NextChapter,
    Stop,
    PreviousFrame,
    NextFrame,
    Time,
    Volume,
    VolumeSlider,
    ThreeD,
    Preview,
    Playlist,
    FullScreen,
    Count
};

class TransportLayout final {
public:
    static constexpr std::size_t PlaceCount = static_cast<std::size_t>(TransportPlace::Count);
    using PlaceSet = std::bitset<PlaceCount>;

    // Design pixels: the whole bar with the shade above the controls.
    static constexpr int DesignHeight = 132;

    // ratio: screen pixels a design pixel. compact: an opaque panel instead of the shade. timeWidth: screen
    // pixels of the time text. absent: places that are not used at all. A bar too narrow for the rest drops
    // what is wanted least.
    static TransportLayout arranged(const QSize &size, double ratio, bool compact, int timeWidth,
                                    const PlaceSet &absent);

    // Null when it was dropped or is absent.
    [[nodiscard]] QRect place(TransportPlace place) const
    {
        return m_places[static_cast<std::size_t>(place)];
    }
    [[nodiscard]] QRect progress() const { return m_progress; }
    // What the controls stand on; clicks above it belong to the picture.
    [[nodiscard]] QRect panel() const { return m_panel; }
    // The small text above a point of the seek slider, kept inside the bar.
    [[nodiscard]] QRect bubble(int x, const QSize &size) const;
    // The corner by which the window is resized.
    [[nodiscard]] QRect grip() const;

private:
    std::array<QRect, PlaceCount> m_places;
    QRect m_progress;
    QRect m_panel;
    QSize m_size;
    double m_ratio{1.0};
};
