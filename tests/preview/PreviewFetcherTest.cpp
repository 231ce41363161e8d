#include "ScriptedSource.h"

#include "preview/PreviewFetcher.h"
#include "support/Eventually.h"

#include <QElapsedTimer>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

const QString Film = QStringLiteral("/films/a.mkv");

class PreviewFetcherTest : public testing::Test {
protected:
    PreviewFetcherTest()
    {
        QObject::connect(&fetcher, &PreviewFetcher::pictureReady, &context,
                         [this](int position, const QImage &image) {
                             ready.append(position);
                             last = image;
                         });
        QObject::connect(&fetcher, &PreviewFetcher::pictureMissing, &context,
                         [this](int position) { missing.append(position); });
        QObject::connect(&fetcher, &PreviewFetcher::rowReady, &context,
                         [this](int position, const QByteArray &png) {
                             rows.append(position);
                             pngs.append(png);
                         });
        QObject::connect(&fetcher, &PreviewFetcher::fillEnded, &context, [this] { ++ends; });
    }

    std::shared_ptr<ScriptedSource> source = std::make_shared<ScriptedSource>();
    PreviewFetcher fetcher{source, 8 * 324 * 182 * 4};
    QObject context;
    QVector<int> ready;
    QVector<int> missing;
    QVector<int> rows;
    QList<QByteArray> pngs;
    QImage last;
    int ends{0};
};

} // namespace

TEST_F(PreviewFetcherTest, GivesThePictureOfAPosition)
{
    fetcher.setSource(Film);
    fetcher.request(12000);
    ASSERT_EVENTUALLY(ready.contains(12000));
    EXPECT_EQ(last, ScriptedSource::picture(12000));
    EXPECT_EQ(source->path(), Film);
    EXPECT_EQ(source->opens(), 1);
}

TEST_F(PreviewFetcherTest, NothingIsOpenedBeforeAPictureIsWanted)
{
    fetcher.setSource(Film);
    EXPECT_FALSE(fetcher.isFilling());
    ASSERT_EVENTUALLY(!fetcher.isWorking());
    EXPECT_EQ(source->opens(), 0);
}

TEST_F(PreviewFetcherTest, AThousandQuickHoversFetchOnlyTheFirstAndTheNewest)
{
    fetcher.setSource(Film);
    source->holdGrabs(true);
    fetcher.request(0);
    ASSERT_TRUE(source->waitInsideGrab());
    for (int second = 1; second < 1000; ++second)
        fetcher.request(second * 1000);
    source->holdGrabs(false);
    ASSERT_EVENTUALLY(ready.contains(999000));
    ASSERT_EVENTUALLY(!fetcher.isWorking());
    EXPECT_EQ(source->grabs(), (QVector<int>{0, 999000}));
    EXPECT_EQ(ready, (QVector<int>{0, 999000}));
}

TEST_F(PreviewFetcherTest, APictureThatIsKnownIsGivenAtOnce)
{
    fetcher.setSource(Film);
    source->setAnswer([](int position) { return PreviewPicture{ScriptedSource::picture(position), 8000}; });
    fetcher.request(11000);
    ASSERT_EVENTUALLY(ready.contains(11000));
    fetcher.request(9000); // the same key frame
    EXPECT_EQ(ready, (QVector<int>{11000, 9000}));
    EXPECT_EQ(source->grabs().size(), 1);
}

TEST_F(PreviewFetcherTest, TheMemoryOfPicturesStaysBelowItsCap)
{
    fetcher.setSource(Film);
    for (int second = 0; second < 40; ++second) {
        fetcher.request(second * 1000);
        ASSERT_EVENTUALLY(ready.contains(second * 1000));
        ASSERT_LE(fetcher.cacheBytes(), 8 * 324 * 182 * 4);
    }
    EXPECT_EQ(fetcher.cacheBytes(), 8 * 324 * 182 * 4);
    fetcher.request(0); // gone from the memory
    ASSERT_EVENTUALLY(ready.count(0) == 2);
    EXPECT_EQ(source->grabs().size(), 41);
}

TEST_F(PreviewFetcherTest, ASourceThatCannotBeOpenedAnswersAtOnceFromThenOn)
{
    source->setOpensWell(false);
    fetcher.setSource(QStringLiteral("/films/broken.mkv"));
    fetcher.request(5000);
    ASSERT_EVENTUALLY(missing.contains(5000));
    for (int second = 0; second < 1000; ++second)
        fetcher.request(second * 1000);
    EXPECT_EQ(missing.size(), 1001);
    EXPECT_EQ(source->opens(), 1);
    EXPECT_TRUE(source->grabs().isEmpty());
    EXPECT_TRUE(ready.isEmpty());
}

TEST_F(PreviewFetcherTest, ASourceWhosePicturesAllFailIsGivenUp)
{
    source->setAnswer([](int) { return PreviewPicture{}; });
    fetcher.setSource(Film);
    for (int second = 0; second < 100; ++second) {
        fetcher.request(second * 1000);
        ASSERT_EVENTUALLY(missing.contains(second * 1000));
    }
    EXPECT_EQ(source->grabs().size(), PreviewWorker::FirstFailures);
}

TEST_F(PreviewFetcherTest, ABadSpotOfAGoodSourceIsTriedOnceAndLeavesTheRest)
{
    source->setAnswer([](int position) {
        return position == 5000 ? PreviewPicture{}
                                : PreviewPicture{ScriptedSource::picture(position), position};
    });
    fetcher.setSource(Film);
    for (const int position : {1000, 5000, 2000, 5000, 3000}) {
        fetcher.request(position);
        ASSERT_EVENTUALLY(ready.contains(position) || missing.contains(position));
    }
    EXPECT_EQ(missing, (QVector<int>{5000, 5000}));
    EXPECT_EQ(source->grabs().count(5000), 1);
    EXPECT_EQ(ready.size(), 3);
}

TEST_F(PreviewFetcherTest, WithoutASourceThereIsNoPicture)
{
    fetcher.request(1000);
    EXPECT_EQ(missing, QVector<int>{1000});
    EXPECT_EQ(source->opens(), 0);
}

TEST_F(PreviewFetcherTest, AnotherSourceGetsNoPictureOfTheOneBefore)
{
    fetcher.setSource(Film);
    source->holdGrabs(true);
    fetcher.request(1000);
    ASSERT_TRUE(source->waitInsideGrab());
    fetcher.setSource(QStringLiteral("/films/b.mkv"));
    source->holdGrabs(false);
    fetcher.request(2000);
    ASSERT_EVENTUALLY(ready.contains(2000));
    EXPECT_EQ(ready, QVector<int>{2000});
    EXPECT_TRUE(missing.isEmpty());
    EXPECT_EQ(source->path(), QStringLiteral("/films/b.mkv"));
    fetcher.request(1000);
    ASSERT_EVENTUALLY(ready.contains(1000));
    EXPECT_EQ(source->grabs(), (QVector<int>{1000, 2000, 1000}));
}

TEST_F(PreviewFetcherTest, ASourceThatEndsWhileItIsBeingOpenedIsClosedAgain)
{
    fetcher.setSource(Film);
    source->holdOpens(true);
    fetcher.request(1000);
    ASSERT_TRUE(source->waitInsideOpen());
    fetcher.setSource({});
    source->holdOpens(false);
    ASSERT_EVENTUALLY(!fetcher.isWorking());
    EXPECT_FALSE(source->isOpen());
    EXPECT_TRUE(ready.isEmpty());
    EXPECT_TRUE(missing.isEmpty());
}

TEST_F(PreviewFetcherTest, TheEndOfASourceClosesItsSession)
{
    fetcher.setSource(Film);
    fetcher.request(1000);
    ASSERT_EVENTUALLY(ready.contains(1000));
    EXPECT_TRUE(source->isOpen());
    fetcher.setSource({});
    ASSERT_EVENTUALLY(!source->isOpen());
    EXPECT_EQ(source->closes(), 1);
}

TEST_F(PreviewFetcherTest, AHoverThatTheEndOfASessionCutsOffIsFetchedAgain)
{
    fetcher.setSource(Film);
    source->holdGrabs(true);
    fetcher.request(1000);
    ASSERT_TRUE(source->waitInsideGrab());
    fetcher.closeSession();
    source->holdGrabs(false);
    ASSERT_EVENTUALLY(ready.contains(1000));
    EXPECT_TRUE(missing.isEmpty());
    EXPECT_EQ(source->opens(), 2);
}

TEST_F(PreviewFetcherTest, FillsRowAfterRowInOrder)
{
    fetcher.setSource(Film);
    const QVector<int> positions{0, 5000, 10000, 15000};
    fetcher.fill(positions);
    EXPECT_TRUE(fetcher.isFilling());
    EXPECT_EQ(fetcher.stopFlag(), 0);
    ASSERT_EVENTUALLY(ends == 1);
    EXPECT_EQ(rows, positions);
    EXPECT_FALSE(fetcher.isFilling());
    for (int i = 0; i < positions.size(); ++i) {
        const QImage image = QImage::fromData(pngs.at(i), "PNG");
        EXPECT_EQ(image.pixel(5, 5), ScriptedSource::picture(positions.at(i)).pixel(5, 5));
    }
    EXPECT_TRUE(ready.isEmpty());
}

TEST_F(PreviewFetcherTest, ThePointerIsServedInTheMiddleOfAFilling)
{
    fetcher.setSource(Film);
    source->holdGrabs(true);
    fetcher.fill({0, 5000, 10000});
    ASSERT_TRUE(source->waitInsideGrab());
    fetcher.request(77000);
    source->holdGrabs(false);
    ASSERT_EVENTUALLY(ends == 1);
    EXPECT_EQ(source->grabs(), (QVector<int>{0, 77000, 5000, 10000}));
    EXPECT_EQ(ready, QVector<int>{77000});
    EXPECT_EQ(rows.size(), 3);
}

TEST_F(PreviewFetcherTest, RowsThatAreKnownAreNotFetchedAgain)
{
    fetcher.setSource(Film);
    fetcher.fill({0, 5000, 10000});
    ASSERT_EVENTUALLY(ends == 1);
    fetcher.fill({0, 5000, 10000});
    ASSERT_EVENTUALLY(ends == 2);
    EXPECT_EQ(rows.size(), 6);
    EXPECT_EQ(source->grabs().size(), 3);
    fetcher.request(5000);
    EXPECT_EQ(ready, QVector<int>{5000});
}

TEST_F(PreviewFetcherTest, AStopDuringTheFillingEndsTheWorkerSoonAndNoRowArrivesAfterwards)
{
    fetcher.setSource(Film);
    source->holdGrabs(true);
    fetcher.fill({0, 5000, 10000, 15000});
    ASSERT_TRUE(source->waitInsideGrab());
    QElapsedTimer clock;
    clock.start();
    fetcher.stopFill();
    fetcher.closeSession();
    EXPECT_LT(clock.elapsed(), 1000) << "the caller waits for nobody";
    EXPECT_EQ(fetcher.stopFlag(), 1);
    // close() lets the grab under way come back.
    ASSERT_EVENTUALLY(!fetcher.isWorking());
    EXPECT_FALSE(source->isOpen());
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(rows.isEmpty());
    EXPECT_EQ(ends, 0);
    EXPECT_EQ(source->grabs(), QVector<int>{0});
}

TEST_F(PreviewFetcherTest, ARowThatIsOnItsWayAtTheStopIsDropped)
{
    fetcher.setSource(Film);
    fetcher.fill({0});
    ASSERT_TRUE(QTest::qWaitFor([&] { return source->grabs().size() == 1 || !rows.isEmpty(); }));
    fetcher.fill({0, 5000}); // the row of the first filling may be waiting in the queue
    fetcher.stopFill();
    const int before = rows.size();
    ASSERT_EVENTUALLY(!fetcher.isWorking());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(rows.size(), before);
}

TEST_F(PreviewFetcherTest, AFillingOfABrokenSourceEndsWithEmptyRows)
{
    source->setOpensWell(false);
    fetcher.setSource(Film);
    fetcher.fill({0, 5000});
    ASSERT_EVENTUALLY(ends == 1);
    EXPECT_EQ(rows, (QVector<int>{0, 5000}));
    EXPECT_TRUE(pngs.at(0).isEmpty());
    EXPECT_TRUE(pngs.at(1).isEmpty());
    EXPECT_EQ(source->opens(), 1);
}

TEST_F(PreviewFetcherTest, AFillingOfNothingEndsAtOnce)
{
    fetcher.setSource(Film);
    fetcher.fill({});
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(fetcher.isFilling());
}

TEST_F(PreviewFetcherTest, AfterTheShutDownTheSourceIsClosedAndNeverCalledAgain)
{
    fetcher.setSource(Film);
    fetcher.request(1000);
    ASSERT_EVENTUALLY(ready.contains(1000));
    source->holdGrabs(true);
    fetcher.fill({5000, 10000});
    ASSERT_TRUE(source->waitInsideGrab());
    fetcher.shutDown();
    EXPECT_FALSE(fetcher.isWorking());
    EXPECT_FALSE(source->isOpen());
    source->holdGrabs(false);
    const int opens = source->opens();
    const int grabs = source->grabs().size();
    fetcher.setSource(Film);
    fetcher.request(2000);
    fetcher.fill({5000});
    fetcher.closeSession();
    fetcher.shutDown();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(source->opens(), opens);
    EXPECT_EQ(source->grabs().size(), grabs);
    EXPECT_TRUE(rows.isEmpty());
    EXPECT_FALSE(fetcher.isWorking());
}

TEST_F(PreviewFetcherTest, ASourceThatHangsHoldsUpNobody)
{
    source->setStubborn(true); // not even close() brings the grab back
    fetcher.setSource(Film);
    source->holdGrabs(true);
    fetcher.fill({0, 5000});
    ASSERT_TRUE(source->waitInsideGrab());
    QElapsedTimer clock;
    clock.start();
    fetcher.request(1000);
    fetcher.stopFill();
    fetcher.closeSession();
    fetcher.setSource(QStringLiteral("/films/b.mkv"));
    fetcher.request(2000);
    fetcher.fill({0});
    EXPECT_LT(clock.elapsed(), 1000);
    EXPECT_TRUE(fetcher.isWorking());
    source->holdGrabs(false);
    ASSERT_EVENTUALLY(ends == 1 && ready.contains(2000));
    EXPECT_EQ(ready, QVector<int>{2000});
    EXPECT_EQ(rows, QVector<int>{0});
    EXPECT_EQ(source->path(), QStringLiteral("/films/b.mkv"));
}

TEST_F(PreviewFetcherTest, AFetcherThatGoesDuringAFetchClosesTheSession)
{
    auto own = std::make_unique<PreviewFetcher>(source);
    own->setSource(Film);
    source->holdGrabs(true);
    own->request(1000);
    ASSERT_TRUE(source->waitInsideGrab());
    QElapsedTimer clock;
    clock.start();
    own.reset();
    EXPECT_LT(clock.elapsed(), 2000);
    EXPECT_FALSE(source->isOpen());
    source->holdGrabs(false);
    auto idle = std::make_unique<PreviewFetcher>(source);
    QSignalSpy spy(idle.get(), &PreviewFetcher::pictureReady);
    idle->setSource(Film);
    idle->request(2000);
    ASSERT_EVENTUALLY(spy.count() == 1);
    EXPECT_TRUE(source->isOpen());
    idle.reset();
    EXPECT_FALSE(source->isOpen());
}
