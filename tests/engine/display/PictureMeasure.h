// Numbers for what an eye sees in a picture.
#pragma once

#include <QImage>

#include <array>
#include <cmath>

namespace PictureMeasure {

// Mean of red, green and blue, 0 to 255.
inline std::array<double, 3> mean(const QImage &picture)
{
    std::array<double, 3> sum{};
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            sum[0] += qRed(pixel);
            sum[1] += qGreen(pixel);
            sum[2] += qBlue(pixel);
        }
    }
    for (double &channel : sum)
        channel /= picture.width() * picture.height();
    return sum;
}

// How much neighbours in a line differ.
inline double contrast(const QImage &picture)
{
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 1; x < picture.width(); ++x)
            sum += std::abs(qGray(picture.pixel(x, y)) - qGray(picture.pixel(x - 1, y)));
    }
    return sum / (picture.width() * picture.height());
}

// How much each line stands out between the lines above and below it, where those agree: the combs of two
// fields.
inline double combs(const QImage &picture)
{
    double sum = 0;
    for (int y = 1; y + 1 < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const int above = qGray(picture.pixel(x, y - 1));
            const int here = qGray(picture.pixel(x, y));
            const int below = qGray(picture.pixel(x, y + 1));
            if (std::abs(above - below) < 16)
                sum += std::abs(here - (above + below) / 2);
        }
    }
    return sum / (picture.width() * picture.height());
}

} // namespace PictureMeasure
