// Pictures that are broken, huge, turned, or rows of pixels.
#include "TestPictures.h"

#include "pictures/PictureDecoder.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace TestPictures;

namespace {

// The head of a grey bitmap of that size, without its pixels.
QByteArray headOnly(int width, int height)
{
    return QStringLiteral("P5 %1 %2 255\n").arg(width).arg(height).toLatin1();
}

PlayerPicture rows(int width, int height, int format, const QByteArray &data)
{
    PlayerPicture picture;
    picture.data = data;
    picture.width = width;
    picture.height = height;
    picture.format = format;
    return picture;
}

} // namespace

TEST(PictureDecoderTest, AHugePictureIsReadSmaller)
{
    const QByteArray bytes = encoded(image(Qt::blue, {6000, 3000}), "JPEG");
    const QImage picture = PictureDecoder::fromBytes(bytes);
    EXPECT_EQ(picture.size(), QSize(2048, 1024));
    EXPECT_TRUE(isColor(picture.pixelColor(2000, 1000), Qt::blue));
}

TEST(PictureDecoderTest, APictureThatWouldTakeTheMemoryIsNotRead)
{
    EXPECT_TRUE(PictureDecoder::fromBytes(headOnly(30000, 30000)).isNull());
}

TEST(PictureDecoderTest, AStripOfOnePixelKeepsThatPixel)
{
    EXPECT_EQ(PictureDecoder::fromBytes(encoded(Qt::red, {5000, 1})).size(), QSize(2048, 1));
}

TEST(PictureDecoderTest, PicturesHaveTheFormInWhichTheyAreDrawn)
{
    EXPECT_EQ(PictureDecoder::fromBytes(encoded(Qt::red)).format(), QImage::Format_RGB32);
    QImage glass(8, 8, QImage::Format_ARGB32);
    glass.fill(QColor(255, 0, 0, 100));
    EXPECT_EQ(PictureDecoder::fromBytes(encoded(glass)).format(), QImage::Format_ARGB32_Premultiplied);
}

TEST(PictureDecoderTest, RowsOfPixelsAreRead)
{
    const QByteArray pixels = QByteArray::fromHex("ff00007f00ff00000000ffff102030ff");
    const QImage picture = PictureDecoder::fromEngine(rows(2, 2, libvp::VD_Picture_Rgba, pixels));
    ASSERT_EQ(picture.size(), QSize(2, 2));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(255, 0, 0));
    EXPECT_EQ(picture.pixelColor(1, 0), QColor(0, 255, 0));
    EXPECT_EQ(picture.pixelColor(0, 1), QColor(0, 0, 255));
    EXPECT_EQ(picture.pixelColor(1, 1), QColor(0x10, 0x20, 0x30));
}

TEST(PictureDecoderTest, AnAnswerOfTheEngineThatCannotBeIsAFailure)
{
    const QByteArray four(16, '\x40');
    const PlayerPicture answers[] = {
        rows(2, 2, libvp::VD_Picture_Rgba, {}),
        rows(2, 2, -1, four),
        rows(2, 2, 7, four),
        rows(0, 2, libvp::VD_Picture_Rgba, four),
        rows(2, -2, libvp::VD_Picture_Rgba, four),
        rows(2, 3, libvp::VD_Picture_Rgba, four), // a row short
        rows(65536, 65536, libvp::VD_Picture_Rgba, four),
        rows(2, 2, libvp::VD_Picture_Jpeg, four),
        rows(60, 90, libvp::VD_Picture_Jpeg, encoded(Qt::red)), // not a JPEG
    };
    for (std::size_t index = 0; index < std::size(answers); ++index)
        EXPECT_TRUE(PictureDecoder::fromEngine(answers[index]).isNull()) << index;
}

TEST(PictureDecoderTest, AJpegOfTheEngineIsRead)
{
    const QByteArray jpeg = encoded(image(Qt::green), "JPEG");
    EXPECT_EQ(PictureDecoder::fromEngine(rows(60, 90, libvp::VD_Picture_Jpeg, jpeg)).size(), QSize(60, 90));
}

TEST(PictureDecoderTest, TheMiddleOfAPictureFillsATarget)
{
    const struct {
        QSize picture;
        QSize target;
        QRect part;
    } cases[] = {
        {{600, 300}, {100, 100}, {150, 0, 300, 300}}, // wide into a square
        {{300, 600}, {100, 100}, {0, 150, 300, 300}}, // tall into a square
        {{200, 300}, {200, 400}, {25, 0, 150, 300}},  // tall into taller
        {{600, 400}, {200, 400}, {200, 0, 200, 400}}, // wide into tall
        {{300, 300}, {400, 200}, {0, 75, 300, 150}},  // a square into wide
        {{400, 200}, {400, 200}, {0, 0, 400, 200}},   {{1, 2000}, {400, 1}, {0, 999, 1, 1}},
    };
    for (const auto &each : cases) {
        const QRect part = PictureDecoder::middlePart(each.picture, each.target);
        EXPECT_EQ(part, each.part) << each.picture.width() << "x" << each.picture.height();
        EXPECT_EQ(PictureDecoder::scaledAndCropped(image(Qt::red, each.picture), each.target).size(),
                  each.target);
    }
}

TEST(PictureDecoderTest, NothingFillsNothing)
{
    EXPECT_TRUE(PictureDecoder::scaledAndCropped({}, {10, 10}).isNull());
    EXPECT_TRUE(PictureDecoder::scaledAndCropped(image(Qt::red), {}).isNull());
    EXPECT_TRUE(PictureDecoder::scaledAndCropped(image(Qt::red), {10, 0}).isNull());
}
