// The end of a list and of the program, with requests under way and from other threads.
#include "HeardRows.h"
#include "TestPictures.h"

#include "pictures/PictureLane.h"
#include "pictures/PictureManager.h"
#include "pictures/PosterLoader.h"
#include "support/Eventually.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace TestPictures;
using std::chrono::milliseconds;

namespace {

const QString kKey = QStringLiteral("poster one");
const QString kOther = QStringLiteral("poster two");
// A lane that was not woken would rest so long.
constexpr milliseconds kNever{3600 * 1000};

class PictureManagerEndTest : public testing::Test {
protected:
    ~PictureManagerEndTest() override { m_server.release(); }

    void put(const QString &key) { m_server.put(PosterLoader::address(key), encoded(Qt::red)); }

    // A picture that is there.
    [[nodiscard]] static QPixmap *have(PictureManager &manager, const QString &key)
    {
        QPixmap *pixmap = nullptr;
        return QTest::qWaitFor([&] { return (pixmap = manager.requestPoster(0, key)) != nullptr; }, 10000)
                   ? pixmap
                   : nullptr;
    }

    Server m_server;
};

} // namespace

TEST_F(PictureManagerEndTest, ClearingForgetsWhatIsThereAndWhatWaits)
{
    PictureManager manager(m_server.sources(), milliseconds(10));
    put(kKey);
    ASSERT_NE(have(manager, kKey), nullptr);
    EXPECT_EQ(manager.requestPoster(2, kOther), nullptr);
    ASSERT_TRUE(m_server.waitForFetches(2));
    manager.clearAll();
    HeardRows rows(manager, qOverload<int>(&PictureManager::sig_pictureLoaded));
    put(kOther);
    EXPECT_EQ(manager.requestPoster(5, kKey), nullptr);
    ASSERT_EVENTUALLY(rows.count() == 1);
    EXPECT_EQ(rows.at(0), 5);
    EXPECT_EQ(m_server.addresses().count(PosterLoader::address(kKey)), 2);
}

TEST_F(PictureManagerEndTest, APictureThatComesAfterClearingIsForNobody)
{
    PictureManager manager(m_server.sources(), milliseconds(10));
    HeardRows rows(manager, qOverload<int>(&PictureManager::sig_pictureLoaded));
    put(kKey);
    put(kOther);
    m_server.hold();
    EXPECT_EQ(manager.requestPoster(1, kKey), nullptr);
    ASSERT_TRUE(m_server.waitForFetches(1));
    manager.clearAll();
    // The same key in the new list, while the old one's answer is still to come.
    EXPECT_EQ(manager.requestPoster(4, kKey), nullptr);
    m_server.release();
    ASSERT_EVENTUALLY(rows.count() == 1);
    EXPECT_EQ(rows.at(0), 4);
    EXPECT_EQ(m_server.addresses().size(), 2);
}

TEST_F(PictureManagerEndTest, APictureThatIsBeingPaintedOutlivesClearing)
{
    PictureManager manager(m_server.sources(), milliseconds(10));
    put(kKey);
    QPixmap *pixmap = have(manager, kKey);
    ASSERT_NE(pixmap, nullptr);
    std::thread other([&manager] { manager.clearAll(); });
    other.join();
    manager.clearAll();
    // The event loop was not entered since: AddressSanitizer would tell of a picture that is gone.
    EXPECT_TRUE(isColor(pixmap->toImage().pixelColor(1, 1), Qt::red));
    EXPECT_EQ(manager.requestPoster(1, kKey), nullptr);
}

TEST_F(PictureManagerEndTest, TheEndDoesNotWaitForTheNextRound)
{
    PictureManager manager(m_server.sources(), kNever);
    put(kKey);
    ASSERT_NE(have(manager, kKey), nullptr);
    QElapsedTimer timer;
    timer.start();
    manager.stop();
    EXPECT_LT(timer.elapsed(), 2000);
    EXPECT_NE(manager.requestPoster(1, kKey), nullptr);
    EXPECT_EQ(manager.requestPoster(1, kOther), nullptr);
    manager.stop();
}

TEST_F(PictureManagerEndTest, TheEndLeavesTheRestOfARound)
{
    int told = 0;
    PictureLane lane(
        "poster",
        [this](const QString &key, const auto &) { return PosterLoader::load(key, m_server.sources()); },
        [&told](int) { ++told; }, kNever);
    m_server.hold();
    for (int row = 0; row < 50; ++row) {
        put(QString::number(row));
        lane.queue(row, QString::number(row));
    }
    ASSERT_TRUE(m_server.waitForFetches(1));
    lane.askToStop();
    m_server.release();
    lane.stop();
    EXPECT_EQ(m_server.addresses().size(), 1);
    EXPECT_LE(told, 1);
    EXPECT_EQ(lane.request(99, kOther), nullptr);
}

TEST_F(PictureManagerEndTest, AnotherThreadGetsNoPixmapButThePictureComes)
{
    PictureManager manager(m_server.sources(), milliseconds(10));
    HeardRows rows(manager, qOverload<int>(&PictureManager::sig_pictureLoaded));
    put(kKey);
    QPixmap *first = nullptr;
    QPixmap *now = nullptr;
    std::thread other([&] {
        first = manager.requestPoster(3, kKey);
        now = manager.loadPosterNow(kKey);
    });
    other.join();
    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(now, nullptr);
    ASSERT_EVENTUALLY(rows.count() == 1);
    EXPECT_EQ(rows.at(0), 3);
}

TEST_F(PictureManagerEndTest, RequestsAndClearingFromSeveralThreadsMeet)
{
    PictureManager manager(m_server.sources(), milliseconds(1));
    for (int row = 0; row < 20; ++row)
        put(QString::number(row));
    std::atomic_bool isDone{false};
    std::thread clearing([&] {
        while (!isDone) {
            manager.clearAll();
            std::this_thread::yield();
        }
    });
    std::thread asking([&] {
        for (int row = 0; !isDone; row = (row + 1) % 20)
            (void)manager.requestPoster(row, QString::number(row));
    });
    int seen = 0;
    const bool isSeen = QTest::qWaitFor(
        [&] {
            for (int row = 0; row < 20; ++row) {
                if (QPixmap *pixmap = manager.requestPoster(row, QString::number(row)))
                    seen += pixmap->width() == 60 ? 1 : -1000000;
            }
            return seen >= 20;
        },
        10000);
    isDone = true;
    clearing.join();
    asking.join();
    EXPECT_TRUE(isSeen);
    EXPECT_GE(seen, 0);
}
