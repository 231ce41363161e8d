// Numbers of the strip: which positions it shows, how large a zoom makes them and which of them a quantity
// leaves. Plain functions; any thread.
#pragma once

#include <QRect>
#include <QVector>

namespace PreviewPlan {

inline constexpr int MostRows = 60;
inline constexpr int LeastSeconds = 5; // between two rows

// Ranges of the two sliders; the largest value means the largest pictures, or all of them.
inline constexpr int ZoomMost = 6;
inline constexpr int QuantityMost = 5;

// Seconds of the rows of a source; empty where the length is not known.
[[nodiscard]] QVector<int> positions(int totalSeconds);

// Every how manieth row a value of the quantity slider shows.
[[nodiscard]] int stepOf(int quantity);

// Screen pixels.
struct Cells {
    int columns{1};
    QSize cell;        // of one row of the model: picture, time and the gaps around them
    int stripWidth{0}; // of the whole strip: a whole number of cells and its margins
};

// available: widest strip; ratio: screen pixels a design pixel.
[[nodiscard]] Cells cells(int zoom, int available, double ratio);

// Parts of a cell. The picture's place, into which a picture is fitted, and the line of the time below.
[[nodiscard]] QRect pictureRect(const QRect &cell, double ratio);
[[nodiscard]] QRect timeRect(const QRect &cell, double ratio);
// A picture of this size in its place.
[[nodiscard]] QRect fitted(const QSize &picture, const QRect &place);

} // namespace PreviewPlan
