// Requests of the views, the bursts in which pictures come, and the end of a list.
#include "HeardRows.h"
#include "TestPictures.h"

#include "pictures/PictureManager.h"
#include "pictures/PosterLoader.h"
#include "support/Eventually.h"
#include "support/TestLog.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

using namespace TestPictures;
using std::chrono::milliseconds;

namespace {

constexpr milliseconds kShort{10};
constexpr milliseconds kNever{3600 * 1000};

const QString kKey = QStringLiteral("poster one");
const QString kOther = QStringLiteral("poster two");

class PictureManagerTest : public testing::Test {
protected:
    PictureManagerTest() { make(kShort); }
    ~PictureManagerTest() override
    {
        m_server.release();
        m_manager.reset();
    }

    void make(milliseconds interval)
    {
        m_manager = std::make_unique<PictureManager>(m_server.sources(), interval);
        m_rows = std::make_unique<HeardRows>(*m_manager, qOverload<int>(&PictureManager::sig_pictureLoaded));
        m_bare = 0;
        QObject::connect(m_manager.get(), qOverload<>(&PictureManager::sig_pictureLoaded), &m_context,
                         [this] { ++m_bare; });
    }

    void put(const QString &key, const QColor &color)
    {
        m_server.put(PosterLoader::address(key), encoded(color));
    }

    [[nodiscard]] static QColor colorOf(const QPixmap *pixmap)
    {
        return pixmap ? pixmap->toImage().pixelColor(3, 3) : QColor();
    }

    Server m_server;
    std::unique_ptr<PictureManager> m_manager;
    std::unique_ptr<HeardRows> m_rows;
    QObject m_context;
    int m_bare{0};
};

} // namespace

TEST_F(PictureManagerTest, APosterComesLaterAndTellsItsRow)
{
    put(kKey, Qt::red);
    EXPECT_EQ(m_manager->requestPoster(7, kKey), nullptr);
    ASSERT_EVENTUALLY(m_rows->count() == 1);
    EXPECT_EQ(m_rows->at(0), 7);
    ASSERT_EVENTUALLY(m_bare == 1);
    QPixmap *pixmap = m_manager->requestPoster(9, kKey);
    EXPECT_TRUE(isColor(colorOf(pixmap), Qt::red));
    EXPECT_EQ(m_manager->requestPoster(7, kKey), pixmap);
}

TEST_F(PictureManagerTest, ThePosterOfTwoRowsIsFetchedOnceAndOnlyTheFirstRowIsTold)
{
    put(kKey, Qt::red);
    put(kOther, Qt::blue);
    m_server.hold();
    EXPECT_EQ(m_manager->requestPoster(3, kKey), nullptr);
    EXPECT_EQ(m_manager->requestPoster(4, kKey), nullptr);
    ASSERT_TRUE(m_server.waitForFetches(1));
    EXPECT_EQ(m_manager->requestPoster(5, kKey), nullptr);
    m_server.release();
    ASSERT_EVENTUALLY(m_rows->count() == 1);
    // A poster that comes later shows that nothing else is to come of the first.
    EXPECT_EQ(m_manager->requestPoster(8, kOther), nullptr);
    ASSERT_EVENTUALLY(m_rows->count() == 2);
    EXPECT_EQ(m_rows->at(0), 3);
    EXPECT_EQ(m_rows->at(1), 8);
    EXPECT_EQ(m_server.addresses().count(PosterLoader::address(kKey)), 1);
}

TEST_F(PictureManagerTest, APosterThatFailedIsTriedAgainInEachRound)
{
    EXPECT_EQ(m_manager->requestPoster(1, kKey), nullptr);
    ASSERT_TRUE(m_server.waitForFetches(3));
    EXPECT_EQ(m_rows->count(), 0);
    put(kKey, Qt::green);
    ASSERT_EVENTUALLY(m_rows->count() == 1);
    EXPECT_TRUE(isColor(colorOf(m_manager->requestPoster(1, kKey)), QColor(Qt::green)));
    // Told once, whatever the number of rounds.
    EXPECT_EQ(TestLog::infoLines().filter(kKey).size(), 1);
}

TEST_F(PictureManagerTest, AfterARoundTheLaneRestsForItsInterval)
{
    make(milliseconds(400));
    put(kKey, Qt::red);
    put(kOther, Qt::blue);
    EXPECT_EQ(m_manager->requestPoster(1, kKey), nullptr);
    ASSERT_EVENTUALLY(m_rows->count() == 1);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(m_manager->requestPoster(2, kOther), nullptr);
    ASSERT_EVENTUALLY(m_rows->count() == 2);
    EXPECT_GE(timer.elapsed(), 300);
    EXPECT_EQ(PictureManager::kInterval, milliseconds(1500));
}

TEST_F(PictureManagerTest, WhatAViewAsksForAtOnceComesInOneBurst)
{
    make(kNever);
    const int count = 12;
    for (int row = 0; row < count; ++row) {
        const QString key = QString::number(row);
        put(key, Qt::red);
        EXPECT_EQ(m_manager->requestPoster(row, key), nullptr);
    }
    ASSERT_EVENTUALLY(m_rows->count() == count);
}

TEST_F(PictureManagerTest, APosterThatFailsDoesNotHoldUpANewOne)
{
    const QString dead = QStringLiteral("a dead key comes first by its name");
    EXPECT_EQ(m_manager->requestPoster(1, dead), nullptr);
    ASSERT_TRUE(m_server.waitForFetches(2));
    m_server.hold();
    const int before = m_server.addresses().size();
    ASSERT_TRUE(m_server.waitForFetches(before + 1));
    // The lane waits in a fetch: both are there when the next round begins.
    put(QStringLiteral("z"), Qt::red);
    EXPECT_EQ(m_manager->requestPoster(2, QStringLiteral("z")), nullptr);
    const int during = m_server.addresses().size();
    m_server.release();
    ASSERT_TRUE(m_server.waitForFetches(during + 2));
    EXPECT_EQ(m_server.addresses().at(during), PosterLoader::address(QStringLiteral("z")));
}

TEST_F(PictureManagerTest, AnEmptyKeyHasNoPicture)
{
    EXPECT_EQ(m_manager->requestPoster(1, {}), nullptr);
    EXPECT_EQ(m_manager->requestLocalPicture(1, {}), nullptr);
    EXPECT_EQ(m_manager->requestGenrePicture(1, {}), nullptr);
    EXPECT_EQ(m_manager->loadPosterNow({}), nullptr);
    put(kKey, Qt::red);
    EXPECT_EQ(m_manager->requestPoster(2, kKey), nullptr);
    ASSERT_EVENTUALLY(m_rows->count() == 1);
    EXPECT_EQ(m_server.addresses().size(), 1);
}

TEST_F(PictureManagerTest, LocalPicturesAndGenresHaveLanesOfTheirOwn)
{
    const QTemporaryDir folder;
    put(kKey, Qt::yellow);
    PictureSources sources = m_server.sources();
    sources.thumbnail = [](const QByteArray &) {
        PlayerPicture picture;
        picture.data = encoded(image(Qt::blue), "JPEG");
        picture.format = libvp::VD_Picture_Jpeg;
        return picture;
    };
    sources.genrePosters = [](const QString &) { return QStringList(kKey); };
    m_manager->setSources(sources);
    HeardRows locals(*m_manager, &PictureManager::sig_LocalPictureLoaded);
    HeardRows genres(*m_manager, &PictureManager::sig_musicGenrePictureLoaded);
    EXPECT_EQ(m_manager->requestLocalPicture(11, folder.path()), nullptr);
    EXPECT_EQ(m_manager->requestGenrePicture(12, QStringLiteral("Jazz")), nullptr);
    ASSERT_EVENTUALLY(locals.count() == 1 && genres.count() == 1);
    EXPECT_EQ(locals.at(0), 11);
    EXPECT_EQ(genres.at(0), 12);
    EXPECT_EQ(m_rows->count(), 0);
    EXPECT_TRUE(isColor(colorOf(m_manager->requestLocalPicture(11, folder.path())), Qt::blue));
    QPixmap *genre = m_manager->requestGenrePicture(12, QStringLiteral("Jazz"));
    ASSERT_NE(genre, nullptr);
    EXPECT_EQ(genre->size(), QSize(400, 400));
}

TEST_F(PictureManagerTest, AStalledServerDoesNotHoldUpTheOtherLanes)
{
    const QTemporaryDir folder;
    PictureSources sources = m_server.sources();
    sources.thumbnail = [](const QByteArray &) {
        PlayerPicture picture;
        picture.data = encoded(image(Qt::blue), "JPEG");
        picture.format = libvp::VD_Picture_Jpeg;
        return picture;
    };
    m_manager->setSources(sources);
    m_server.hold();
    EXPECT_EQ(m_manager->requestPoster(1, kKey), nullptr);
    ASSERT_TRUE(m_server.waitForFetches(1));
    HeardRows locals(*m_manager, &PictureManager::sig_LocalPictureLoaded);
    EXPECT_EQ(m_manager->requestLocalPicture(2, folder.path()), nullptr);
    ASSERT_EVENTUALLY(locals.count() == 1);
}

TEST_F(PictureManagerTest, APosterIsHadAtOnceWhereItIsAskedSo)
{
    make(kNever);
    put(kKey, Qt::red);
    QPixmap *pixmap = m_manager->loadPosterNow(kKey);
    EXPECT_TRUE(isColor(colorOf(pixmap), Qt::red));
    EXPECT_EQ(m_manager->loadPosterNow(kKey), pixmap);
    EXPECT_EQ(m_manager->requestPoster(1, kKey), pixmap);
    EXPECT_EQ(m_server.addresses().size(), 1);
    EXPECT_EQ(m_manager->loadPosterNow(kOther), nullptr);
}

TEST_F(PictureManagerTest, ARowThatWaitsIsToldOfAPosterThatWasHadAtOnce)
{
    EXPECT_EQ(m_manager->requestPoster(6, kKey), nullptr);
    ASSERT_TRUE(m_server.waitForFetches(1));
    put(kKey, Qt::red);
    EXPECT_NE(m_manager->loadPosterNow(kKey), nullptr);
    ASSERT_EVENTUALLY(m_rows->count() == 1);
    EXPECT_EQ(m_rows->at(0), 6);
}

TEST_F(PictureManagerTest, AThrowingSourceIsAFailureOfItsPictureAlone)
{
    PictureSources sources;
    sources.fetch = [](const QString &address, int) -> QByteArray {
        if (address.endsWith(QLatin1String("bad")))
            throw std::runtime_error("no answer");
        return encoded(Qt::red);
    };
    m_manager->setSources(sources);
    EXPECT_EQ(m_manager->requestPoster(1, QStringLiteral("bad")), nullptr);
    EXPECT_EQ(m_manager->requestPoster(2, QStringLiteral("good")), nullptr);
    ASSERT_EVENTUALLY(m_rows->count() == 1);
    EXPECT_EQ(m_rows->at(0), 2);
}

TEST_F(PictureManagerTest, ScaleAndCropFillsTheTarget)
{
    for (const QSize &target : {QSize(200, 400), QSize(400, 200), QSize(100, 100), QSize(1, 1)}) {
        for (const QSize &source : {QSize(60, 90), QSize(90, 60), QSize(700, 700)}) {
            const QPixmap filled =
                PictureManager::scaleAndCrop(QPixmap::fromImage(image(Qt::red, source)), target);
            EXPECT_EQ(filled.size(), target);
            EXPECT_TRUE(isColor(filled.toImage().pixelColor(0, 0), Qt::red));
        }
    }
    EXPECT_TRUE(PictureManager::scaleAndCrop({}, {10, 10}).isNull());
    EXPECT_TRUE(PictureManager::scaleAndCrop(QPixmap(10, 10), {}).isNull());
}
