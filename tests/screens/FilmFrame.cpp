#include "FilmFrame.h"

#include <QBuffer>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace {

struct Ridge {
    double height; // of the frame, from its top
    double swing;
    double step;
    QRgb color;
};

constexpr Ridge kRidges[] = {
    {0.50, 0.045, 5.1, 0xff7d6f8c},
    {0.56, 0.060, 3.3, 0xff51506f},
    {0.63, 0.050, 7.7, 0xff2d3550},
};

QPainterPath outline(const Ridge &ridge, const QSizeF &size)
{
    QPainterPath path(QPointF(0, size.height()));
    for (double x = 0; x <= size.width(); x += 2) {
        const double at = x / size.width() * ridge.step;
        const double wave = std::sin(at * 2.1) + 0.45 * std::sin(at * 5.3 + 1) + 0.12 * std::sin(at * 31 + 2);
        path.lineTo(x, size.height() * (ridge.height - ridge.swing * wave));
    }
    path.lineTo(size.width(), size.height());
    return path;
}

} // namespace

QImage FilmFrame::make(const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height() * 0.6);
    sky.setColorAt(0, QColor(0x26, 0x35, 0x5c));
    sky.setColorAt(0.55, QColor(0xc7, 0x7d, 0x6b));
    sky.setColorAt(1, QColor(0xf7, 0xd2, 0x9a));
    painter.fillRect(image.rect(), sky);

    const QPointF sun(size.width() * 0.68, size.height() * 0.44);
    QRadialGradient glow(sun, size.width() * 0.3);
    glow.setColorAt(0, QColor(255, 240, 205, 190));
    glow.setColorAt(1, QColor(255, 230, 180, 0));
    painter.fillRect(image.rect(), glow);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xff, 0xf3, 0xd6));
    painter.drawEllipse(sun, size.height() * 0.055, size.height() * 0.055);

    for (const Ridge &ridge : kRidges) {
        painter.setBrush(QColor::fromRgb(ridge.color));
        painter.drawPath(outline(ridge, size));
    }
    const QRectF lake(0, size.height() * 0.74, size.width(), size.height() * 0.26);
    QLinearGradient water(lake.topLeft(), lake.bottomLeft());
    water.setColorAt(0, QColor(0x8a, 0x76, 0x83));
    water.setColorAt(1, QColor(0x1c, 0x27, 0x3d));
    painter.fillRect(lake, water);
    painter.setBrush(QColor(255, 226, 180, 60));
    for (int line = 0; line < 14; ++line) {
        const double y = lake.top() + lake.height() * (0.04 + line * 0.066);
        const double width = size.width() * (0.05 + 0.012 * line);
        painter.drawRoundedRect(
            QRectF(sun.x() - width / 2 + std::sin(line * 2.4) * width * 0.2, y, width, size.height() * 0.005),
            2, 2);
    }
    return image;
}

QByteArray FilmFrame::encoded(const QSize &size)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    make(size).save(&buffer, "PNG");
    return bytes;
}
