#include "PreviewPlan.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace PreviewPlan {

namespace {

// Design pixels.
constexpr int Side = 16; // of the strip, left and right of the cells
constexpr int Gap = 6;   // around a picture
constexpr int TimeHeight = 24;
constexpr int LeastPicture = 96; // still wide enough for its time
constexpr int LargestPicture = 324;
constexpr double PictureRatio = 324.0 / 188.0;

// Width of a picture in design pixels, a row a value of the zoom.
constexpr std::array<int, ZoomMost + 1> Widths{112, 132, 156, 184, 220, 264, LargestPicture};
constexpr std::array<int, QuantityMost + 1> Steps{12, 8, 6, 4, 2, 1};

template<std::size_t Count>
int at(const std::array<int, Count> &row, int value)
{
    return row[std::size_t(std::clamp(value, 0, int(Count) - 1))];
}

int scaled(int designPixels, double ratio)
{
    return std::max(1, int(std::lround(designPixels * ratio)));
}

} // namespace

QVector<int> positions(int totalSeconds)
{
    QVector<int> result;
    if (totalSeconds <= 0)
        return result;
    const qint64 total = totalSeconds; // a broken file may tell the largest length that there is
    const qint64 interval = std::max<qint64>(LeastSeconds, (total + MostRows - 1) / MostRows);
    for (qint64 second = 0; second < total; second += interval)
        result.append(int(second));
    return result;
}

int stepOf(int quantity)
{
    return at(Steps, quantity);
}

Cells cells(int zoom, int available, double ratio)
{
    const int room = std::max(1, available - 2 * scaled(Side, ratio));
    const int wanted = scaled(at(Widths, zoom) + 2 * Gap, ratio);
    const int widest = scaled(LargestPicture + 2 * Gap, ratio);
    Cells result;
    result.columns = std::max(1, int(std::lround(double(room) / wanted)));
    // The pictures share the room, so that none is cut at its end.
    const int width = std::min({room, widest, std::max(scaled(LeastPicture, ratio), room / result.columns)});
    result.columns = std::max(1, room / width);
    const int picture = width - 2 * scaled(Gap, ratio);
    result.cell = {width, std::max(1, int(std::lround(picture / PictureRatio))) + 2 * scaled(Gap, ratio)
                              + scaled(TimeHeight, ratio)};
    result.stripWidth = result.columns * width + 2 * scaled(Side, ratio);
    return result;
}

QRect pictureRect(const QRect &cell, double ratio)
{
    const int gap = scaled(Gap, ratio);
    return cell.adjusted(gap, gap, -gap, -gap - scaled(TimeHeight, ratio));
}

QRect timeRect(const QRect &cell, double ratio)
{
    const int gap = scaled(Gap, ratio);
    const int height = scaled(TimeHeight, ratio);
    return {cell.left() + gap, cell.bottom() + 1 - gap - height, cell.width() - 2 * gap, height};
}

QRect fitted(const QSize &picture, const QRect &place)
{
    QRect result(QPoint(), picture.scaled(place.size(), Qt::KeepAspectRatio));
    result.moveCenter(place.center());
    return result;
}

} // namespace PreviewPlan
