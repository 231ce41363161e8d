#include "media/PictureCache.h"
#include "support/SampleClips.h"
#include "support/TestLog.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

namespace {

class PictureCacheTest : public testing::Test {
protected:
    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }
    QByteArray content(const QString &name) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    PictureCache m_cache{m_folder.path()};
};

TEST_F(PictureCacheTest, StoresAPictureOnceUnderItsContent)
{
    const QByteArray red = SampleClips::png(0xFF0000);
    const QString name = m_cache.store(red);
    EXPECT_TRUE(name.endsWith(".png"));
    EXPECT_FALSE(name.contains('/'));
    EXPECT_EQ(m_cache.store(red), name);
    EXPECT_NE(m_cache.store(SampleClips::png(0x00FF00)), name);
    EXPECT_EQ(files().size(), 2);
    EXPECT_EQ(content(name), red);
}

TEST_F(PictureCacheTest, KnowsPicturesByTheirFirstBytes)
{
    const struct {
        QByteArray begin;
        const char *suffix;
    } rows[] = {{"\xFF\xD8\xFF\xE0", ".jpg"},
                {"\x89PNG\r\n\x1A\n", ".png"},
                {"GIF89a", ".gif"},
                {"BMxx", ".bmp"},
                {"RIFF1234WEBPVP8 ", ".webp"}};
    for (const auto &row : rows)
        EXPECT_TRUE(m_cache.store(row.begin + "rest").endsWith(row.suffix)) << row.suffix;
    for (const QByteArray &other :
         {QByteArray(), QByteArray("<html>"), QByteArray("RIFF1234WAVE"), QByteArray("\xFF\xD8")})
        EXPECT_TRUE(m_cache.store(other).isEmpty()) << other.constData();
}

TEST_F(PictureCacheTest, RefusesWhatIsTooLarge)
{
    QByteArray picture = "\xFF\xD8\xFF";
    picture.resize(PictureCache::LargestPicture + 1);
    EXPECT_TRUE(m_cache.store(picture).isEmpty());
    EXPECT_TRUE(files().isEmpty());
    picture.chop(1);
    EXPECT_FALSE(m_cache.store(picture).isEmpty());
}

TEST_F(PictureCacheTest, ReplacesAFileThatWasLeftShort)
{
    const QByteArray red = SampleClips::png(0xFF0000);
    const QString name = m_cache.store(red);
    SampleClips::write(m_folder.filePath(name), red.left(10));
    EXPECT_EQ(m_cache.store(red), name);
    EXPECT_EQ(content(name), red);
    EXPECT_EQ(files().size(), 1);
}

TEST_F(PictureCacheTest, SaysOnceThatItCannotWrite)
{
    TestLog::expectWarning(QRegularExpression("\\[pictures\\].*cannot be written"));
    PictureCache cache(m_folder.filePath("missing"));
    EXPECT_TRUE(cache.store(SampleClips::png(1)).isEmpty());
    EXPECT_TRUE(cache.store(SampleClips::png(2)).isEmpty());
}

TEST_F(PictureCacheTest, TakesOnePictureFromSeveralThreads)
{
    const QByteArray red = SampleClips::png(0xFF0000);
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i)
        threads.emplace_back([&] { EXPECT_FALSE(m_cache.store(red).isEmpty()); });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(files().size(), 1);
}

} // namespace
