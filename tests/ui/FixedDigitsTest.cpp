#include "ui/FixedDigits.h"

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

TEST(FixedDigits, EveryTimeIsAsWideAsAnother)
{
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    const QFontMetrics metrics(font);
    EXPECT_EQ(FixedDigits::width(metrics, QStringLiteral("11:11:11")),
              FixedDigits::width(metrics, QStringLiteral("08:48:06")));
}

TEST(FixedDigits, ClockRunsFromZeroPastAHundredHours)
{
    EXPECT_EQ(FixedDigits::clock(-1), "00:00:00");
    EXPECT_EQ(FixedDigits::clock(0), "00:00:00");
    EXPECT_EQ(FixedDigits::clock(3661), "01:01:01");
    EXPECT_EQ(FixedDigits::clock(360000), "100:00:00");
}

TEST(FixedDigits, RightAlignedTextEndsAtTheRightEdge)
{
    QImage image(100, 30, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setPen(Qt::white);
    FixedDigits::draw(painter, image.rect(), Qt::AlignRight, QStringLiteral("0:00"));
    const int width = FixedDigits::width(painter.fontMetrics(), QStringLiteral("0:00"));
    painter.end();
    int leftmost = image.width();
    int rightmost = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 100) {
                leftmost = qMin(leftmost, x);
                rightmost = qMax(rightmost, x);
            }
        }
    }
    EXPECT_GE(leftmost, image.width() - width - 1);
    EXPECT_GT(rightmost, image.width() - 6);
}
