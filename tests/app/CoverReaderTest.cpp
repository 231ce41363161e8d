#include "pc/CoverReader.h"

#include "WindowFixture.h"

#include <QSemaphore>
#include <QSignalSpy>

#include <gmock/gmock.h>

using testing::Contains;

namespace {

constexpr int PatienceMs = 5000;

QImage coloured(Qt::GlobalColor colour)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(colour);
    return image;
}

using CoverReaderOfThePlayer = WindowFixture;

} // namespace

TEST_F(CoverReaderOfThePlayer, AsksTheEngineAndTurnsItsPixelsIntoAPicture)
{
    fakeEngine().setPicture({1, 2, 3, 0, 4, 5, 6, 0}, 2, 1, libvp::VD_Picture_Rgba);
    CoverReader reader;
    QSignalSpy ready(&reader, &CoverReader::ready);
    reader.request(QStringLiteral("/sound/\"a\".mp3"));
    ASSERT_TRUE(ready.wait(PatienceMs));
    const QImage cover = ready[0][1].value<QImage>();
    EXPECT_EQ(cover.size(), QSize(2, 1));
    EXPECT_EQ(cover.pixelColor(1, 0), QColor(4, 5, 6)) << "opaque, whatever the fourth byte is";
    EXPECT_THAT(fakeEngine().calls(),
                Contains("IVDEngineCore::grabPicture({\"url\":\"/sound/\\\"a\\\".mp3\",\"width\": 640,"
                         "\"height\": 640, \"sourcetype\": 0})"));
}

TEST_F(CoverReaderOfThePlayer, APictureSmallerThanItSaysIsNone)
{
    fakeEngine().setPicture({1, 2, 3, 0}, 200, 100, libvp::VD_Picture_Rgba);
    CoverReader reader;
    QSignalSpy ready(&reader, &CoverReader::ready);
    reader.request(QStringLiteral("/sound/a.mp3"));
    ASSERT_TRUE(ready.wait(PatienceMs));
    EXPECT_TRUE(ready[0][1].value<QImage>().isNull());
}

TEST(CoverReader, ANewRequestReplacesTheOneThatIsReadAndTheOneThatWaits)
{
    QSemaphore begun;
    QSemaphore goOn;
    CoverReader reader([&](const QString &path) {
        begun.release();
        goOn.acquire();
        return coloured(path == QLatin1String("/c") ? Qt::red : Qt::blue);
    });
    QSignalSpy ready(&reader, &CoverReader::ready);
    reader.request(QStringLiteral("/a"));
    ASSERT_TRUE(begun.tryAcquire(1, PatienceMs));
    reader.request(QStringLiteral("/b"));
    reader.request(QStringLiteral("/c"));
    goOn.release(2);
    ASSERT_TRUE(ready.wait(PatienceMs));
    EXPECT_EQ(ready.size(), 1);
    EXPECT_EQ(ready[0][0].toString(), QStringLiteral("/c"));
    EXPECT_EQ(ready[0][1].value<QImage>().pixelColor(0, 0), QColor(Qt::red));
}

TEST(CoverReader, AfterTheSourceHasGoneNothingIsAnswered)
{
    QSemaphore begun;
    QSemaphore goOn;
    CoverReader reader([&](const QString &) {
        begun.release();
        goOn.acquire();
        return coloured(Qt::red);
    });
    QSignalSpy ready(&reader, &CoverReader::ready);
    reader.request(QStringLiteral("/a"));
    ASSERT_TRUE(begun.tryAcquire(1, PatienceMs));
    reader.forget();
    // The one behind it comes, so the answer of the first would have come before.
    goOn.release(2);
    reader.request(QStringLiteral("/b"));
    ASSERT_TRUE(ready.wait(PatienceMs));
    EXPECT_EQ(ready.size(), 1);
    EXPECT_EQ(ready[0][0].toString(), QStringLiteral("/b"));
}
