#include "engine/PictureGrabber.h"

#include "MediaClips.h"

#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

PictureGrabber::Request request(const std::string &path, int width = 320, int height = 240)
{
    PictureGrabber::Request result;
    result.path = path;
    result.width = width;
    result.height = height;
    return result;
}

QImage grab(const std::string &path, const DriveTable &drives = {}, int width = 320, int height = 240)
{
    Picture picture;
    if (!PictureGrabber::grab(request(path, width, height), drives, picture))
        return {};
    EXPECT_EQ(picture.format, libvp::VD_Picture_Jpeg);
    const QImage image = QImage::fromData(picture.bytes.data(), int(picture.bytes.size()), "JPEG");
    EXPECT_EQ(image.width(), picture.width);
    EXPECT_EQ(image.height(), picture.height);
    return image;
}

bool isPlain(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (std::abs(qGray(image.pixel(x, y)) - qGray(image.pixel(0, 0))) > 24)
                return false;
        }
    }
    return true;
}

TEST(PictureGrabber, ReadsARequest)
{
    PictureGrabber::Request parsed;
    ASSERT_TRUE(PictureGrabber::parse(R"({"url":"/films/a.mkv","width": 640,"height": 360, "sourcetype": 0})",
                                      parsed));
    EXPECT_EQ(parsed.path, "/films/a.mkv");
    EXPECT_EQ(parsed.width, 640);
    EXPECT_EQ(parsed.height, 360);
}

TEST(PictureGrabber, APathWithQuotesAndBackslashesSurvivesTheText)
{
    const QString path = QString::fromUtf8("/films/\"quoted\" \\ back\nline ö.mkv");
    QJsonObject object;
    object["url"] = path;
    object["width"] = 100;
    object["height"] = 50;
    object["sourcetype"] = 1;
    PictureGrabber::Request parsed;
    ASSERT_TRUE(PictureGrabber::parse(QJsonDocument(object).toJson().constData(), parsed));
    EXPECT_EQ(QString::fromStdString(parsed.path), path);
}

TEST(PictureGrabber, RequestsThatCannotBeReadAreRefused)
{
    PictureGrabber::Request parsed;
    for (const char *text :
         {"", "nonsense", "[]", "{}", "{\"url\":\"\"}", "{\"url\":7,\"width\":1,\"height\":1}",
          "{\"url\":\"/a\"b\",\"width\": 320,\"height\": 240}", "{\"url\":\"/a\",\"width\":0,\"height\":10}",
          "{\"url\":\"/a\",\"width\":10,\"height\":-1}",
          "{\"url\":\"/a\",\"width\":1000000,\"height\":1000000}"})
        EXPECT_FALSE(PictureGrabber::parse(text, parsed)) << text;
    EXPECT_FALSE(PictureGrabber::parse(nullptr, parsed));
}

TEST(PictureGrabber, AFilmGivesAJpegInItsRatio)
{
    const QImage image = grab(MediaClips::pattern(), {}, 160, 160);
    EXPECT_EQ(image.size(), QSize(160, 90));
    EXPECT_FALSE(isPlain(image));
}

TEST(PictureGrabber, BlackPicturesArePassedOver)
{
    EXPECT_FALSE(isPlain(grab(MediaClips::mostlyBlack())));
}

TEST(PictureGrabber, AFilmOfOneColourStillGivesAPicture)
{
    const QImage image = grab(MediaClips::hevc4K());
    ASSERT_FALSE(image.isNull());
    EXPECT_EQ(image.size(), QSize(320, 180));
    EXPECT_TRUE(isPlain(image));
}

TEST(PictureGrabber, MusicShowsItsCover)
{
    const QImage image = grab(MediaClips::cover());
    ASSERT_EQ(image.size(), QSize(200, 100));
    const QColor colour = image.pixelColor(100, 50);
    EXPECT_GT(colour.red(), 200);
    EXPECT_LT(colour.green(), 60);
    EXPECT_LT(colour.blue(), 60);
}

TEST(PictureGrabber, MusicWithoutACoverHasNone)
{
    EXPECT_TRUE(grab(MediaClips::sound()).isNull());
}

TEST(PictureGrabber, ADiscShowsItsMainTitle)
{
    for (const QString &disc : {TestDiscs::dvdFolder(), TestDiscs::dvdImage(), TestDiscs::bluRayFolder(),
                                TestDiscs::bluRayImage()}) {
        const QImage image = grab(disc.toStdString(), {}, 640, 360);
        EXPECT_FALSE(image.isNull()) << qPrintable(disc);
        EXPECT_FALSE(isPlain(image)) << qPrintable(disc);
    }
}

TEST(PictureGrabber, ADriveLetterMeansItsDisc)
{
    DriveTable drives;
    drives.bind('V', TestDiscs::dvdImage().toStdString());
    EXPECT_FALSE(grab("V:", drives).isNull());
    EXPECT_FALSE(grab("V:\\", drives).isNull());
    EXPECT_TRUE(grab("W:", drives).isNull());
}

TEST(PictureGrabber, AFolderShowsItsPoster)
{
    QTemporaryDir folder;
    QImage red(40, 60, QImage::Format_RGB32);
    red.fill(Qt::red);
    QImage blue(60, 40, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    ASSERT_TRUE(blue.save(folder.filePath("cover.png")));
    EXPECT_EQ(grab(folder.path().toStdString()).size(), blue.size());
    ASSERT_TRUE(red.save(folder.filePath("Poster.JPG"), "JPEG"));
    EXPECT_EQ(grab(folder.path().toStdString()).size(), red.size()) << "the poster comes first";
}

TEST(PictureGrabber, AFolderOrAFileWithoutPicturesHasNone)
{
    QTemporaryDir folder;
    ASSERT_TRUE(MediaClips::writeFile(folder.filePath("poster.jpg"), "not a picture"));
    EXPECT_TRUE(grab(folder.path().toStdString()).isNull());
    EXPECT_TRUE(grab(folder.filePath("poster.jpg").toStdString()).isNull());
    EXPECT_TRUE(grab("/nowhere").isNull());
    EXPECT_TRUE(grab("/dev/zero").isNull());
}

} // namespace
