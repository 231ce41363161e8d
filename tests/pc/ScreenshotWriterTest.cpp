#include "playcontrol/ScreenshotWriter.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

const QDateTime Time(QDate(2024, 5, 31), QTime(20, 5, 7));

QImage picture()
{
    QImage image(32, 18, QImage::Format_RGB32);
    image.fill(QColor(200, 30, 10));
    return image;
}

class ScreenshotWriterTest : public testing::Test {
protected:
    QString write(const ScreenshotNaming::Target &target)
    {
        const int before = saved.count();
        writer.write(picture(), target, Time);
        EXPECT_TRUE(saved.count() > before || saved.wait()) << "no file came";
        return saved.isEmpty() ? QString() : saved.last().at(0).toString();
    }
    ScreenshotWriter::Error writeFails(const QImage &image, const QString &to)
    {
        writer.write(image, {to, ".png", false}, Time);
        EXPECT_TRUE(failed.count() > 0 || failed.wait()) << "no failure came";
        return failed.isEmpty() ? ScreenshotWriter::Error::WriteFailed
                                : failed.takeLast().at(0).value<ScreenshotWriter::Error>();
    }

    QTemporaryDir folder;
    ScreenshotWriter writer;
    QSignalSpy saved{&writer, &ScreenshotWriter::saved};
    QSignalSpy failed{&writer, &ScreenshotWriter::failed};
};

} // namespace

TEST_F(ScreenshotWriterTest, WritesThePictureUnderTheTime)
{
    const QString path = write({folder.path(), ".PNG", false});
    EXPECT_EQ(path, folder.filePath("2024_05_31_20_05_07.PNG"));
    EXPECT_EQ(QImage(path).pixelColor(3, 3), QColor(200, 30, 10));
}

TEST_F(ScreenshotWriterTest, SuffixDecidesTheFormat)
{
    const struct {
        const char *suffix;
        const char *magic;
    } rows[] = {{".png", "\x89PNG"}, {".JPG", "\xff\xd8\xff"}, {".BMP", "BM"}};
    for (const auto &row : rows) {
        QFile file(write({folder.path(), row.suffix, false}));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << row.suffix;
        EXPECT_TRUE(file.read(8).startsWith(row.magic)) << row.suffix;
    }
}

TEST_F(ScreenshotWriterTest, TwoPicturesOfOneSecondKeepBoth)
{
    const QString first = write({folder.path(), ".png", false});
    const QString second = write({folder.path(), ".png", false});
    const QString third = write({folder.path(), ".png", false});
    EXPECT_EQ(second, folder.filePath("2024_05_31_20_05_07_2.png"));
    EXPECT_EQ(third, folder.filePath("2024_05_31_20_05_07_3.png"));
    EXPECT_TRUE(QFile::exists(first));
}

TEST_F(ScreenshotWriterTest, EncodesAndWritesAwayFromTheThreadThatAsks)
{
    const QThread *asking = QThread::currentThread();
    std::atomic<const QThread *> working{nullptr};
    writer.setFreeSpace([&working](const QString &) {
        working = QThread::currentThread();
        return qint64(-1);
    });
    write({folder.path(), ".png", false});
    EXPECT_NE(working.load(), nullptr);
    EXPECT_NE(working.load(), asking);
}

TEST_F(ScreenshotWriterTest, MissingFolderIsTold)
{
    EXPECT_EQ(writeFails(picture(), folder.filePath("gone")), ScreenshotWriter::Error::FolderMissing);
    EXPECT_FALSE(QFile::exists(folder.filePath("gone")));
}

TEST_F(ScreenshotWriterTest, FileInPlaceOfTheFolderIsTold)
{
    QFile file(folder.filePath("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_EQ(writeFails(picture(), folder.filePath("file")), ScreenshotWriter::Error::FolderMissing);
}

TEST_F(ScreenshotWriterTest, FullDiscIsToldAndLeavesNothing)
{
    writer.setFreeSpace([](const QString &) { return qint64(10); });
    EXPECT_EQ(writeFails(picture(), folder.path()), ScreenshotWriter::Error::DiskFull);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(ScreenshotWriterTest, NoPictureIsTold)
{
    EXPECT_EQ(writeFails({}, folder.path()), ScreenshotWriter::Error::NoPicture);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

#ifdef Q_OS_UNIX
TEST_F(ScreenshotWriterTest, FolderThatCanNotBeWrittenIsTold)
{
    // Rights do not bind the superuser; the kernel's own file system refuses everybody.
    QString closed = folder.filePath("closed");
    if (::geteuid() == 0) {
        closed = QStringLiteral("/proc/self");
    } else {
        ASSERT_TRUE(QDir().mkdir(closed));
        ASSERT_TRUE(QFile::setPermissions(closed, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    }
    writer.setFreeSpace([](const QString &) { return qint64(-1); });
    EXPECT_EQ(writeFails(picture(), closed), ScreenshotWriter::Error::NotWritable);
}
#endif

TEST(ScreenshotWriterCopyTest, FrameIsCopiedAndItsTransparencyIgnored)
{
    unsigned char rgba[] = {10, 20, 30, 0, 40, 50, 60, 255};
    const QImage copy = ScreenshotWriter::copyOf(rgba, 2, 1);
    rgba[0] = 99;
    ASSERT_EQ(copy.size(), QSize(2, 1));
    EXPECT_EQ(copy.pixel(0, 0), qRgb(10, 20, 30));
    EXPECT_EQ(copy.pixel(1, 0), qRgb(40, 50, 60));
}

TEST(ScreenshotWriterCopyTest, FrameThatCanNotBeOneIsNull)
{
    unsigned char rgba[4] = {};
    EXPECT_TRUE(ScreenshotWriter::copyOf(nullptr, 1, 1).isNull());
    EXPECT_TRUE(ScreenshotWriter::copyOf(rgba, 0, 1).isNull());
    EXPECT_TRUE(ScreenshotWriter::copyOf(rgba, 1, -1).isNull());
    EXPECT_TRUE(ScreenshotWriter::copyOf(rgba, 1 << 30, 1 << 30).isNull());
}

TEST(ScreenshotWriterLifeTest, EndsWhileAPictureIsBeingWritten)
{
    QTemporaryDir folder;
    {
        ScreenshotWriter writer;
        for (int i = 0; i < 8; ++i)
            writer.write(picture(), {folder.path(), ".png", false}, Time);
    }
    // What had begun is whole; nothing is half.
    const QDir written(folder.path());
    for (const QString &name : written.entryList(QDir::Files))
        EXPECT_FALSE(QImage(written.filePath(name)).isNull()) << qPrintable(name);
}
