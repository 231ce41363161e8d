#include "StoreFixture.h"

#include <QElapsedTimer>

#include <thread>

namespace {

constexpr int kFilms = 50000;
constexpr int kFilmsOfAFolder = 500;

class LibraryListTest : public StoreFixture {
protected:
    void storeMany(int count)
    {
        for (int first = 0; first < count; first += kFilmsOfAFolder) {
            ScannedFolder part = folder(videoRoot, QString("/films/%1").arg(first));
            for (int index = first; index < qMin(count, first + kFilmsOfAFolder); ++index) {
                ScannedVideo one = film(QString("%1/%2.mkv").arg(part.path).arg(index),
                                        QString("Film %1").arg((index * 7919) % count, 6, 10, QChar('0')));
                one.stamp.size = 1000 + index;
                part.videos << one;
            }
            ASSERT_TRUE(store(part));
        }
    }

    StatementCounters costOf(int record)
    {
        const StatementCounters before = database->reader().counters();
        ListRequest request;
        request.start = record;
        request.end = record + 1;
        QElapsedTimer timer;
        timer.start();
        const Page<MovieRecord> page = videos->movies(Role::Movies, request);
        m_microseconds = static_cast<int>(timer.nsecsElapsed() / 1000);
        EXPECT_EQ(page.rows.size(), 1);
        if (!page.rows.isEmpty()) {
            EXPECT_EQ(page.rows[0].title, QString("Film %1").arg(record, 6, 10, QChar('0')));
        }
        const StatementCounters after = database->reader().counters();
        return {after.statements - before.statements, after.rows - before.rows};
    }

    int m_microseconds{0}; // of the last request, for the report of the run
};

} // namespace

TEST_F(LibraryListTest, TheLastRecordOfFiftyThousandCostsWhatTheFirstDoes)
{
    // A server is asked for the same in fewer rows; what is looked at is the plan, not the size.
    const int count = qEnvironmentVariableIsEmpty(kServerVariable) ? kFilms : 2000;
    storeMany(count);
    const StatementCounters order = costOf(0);
    RecordProperty("order_us", m_microseconds);
    EXPECT_GE(order.rows, count);
    const StatementCounters first = costOf(0);
    const StatementCounters last = costOf(count - 1);
    RecordProperty("last_record_us", m_microseconds);
    EXPECT_EQ(first.statements, 2);
    EXPECT_EQ(first.rows, 2);
    EXPECT_EQ(last.statements, first.statements);
    EXPECT_EQ(last.rows, first.rows);

    // A change is seen at once, and costs one new order.
    ASSERT_TRUE(
        videos->remove(videos->movies(Role::Movies, everything()).rows.last().idFile, Removal::FromLibrary));
    EXPECT_GE(costOf(count - 2).rows, count - 1);
    EXPECT_EQ(costOf(0).rows, 2);
}

TEST_F(LibraryListTest, ALongPartIsWholeAndInOrder)
{
    storeMany(1000);
    const QStringList all = titles(Role::Movies);
    ASSERT_EQ(all.size(), 1000);
    for (int index = 1; index < all.size(); ++index)
        EXPECT_LT(all[index - 1], all[index]);
}

TEST_F(LibraryListTest, ReadersOnSeveralThreadsSeeWholeListsDuringAScan)
{
    storeMany(kFilmsOfAFolder);
    std::atomic<bool> done{false};
    std::atomic<int> wrong{0};
    std::vector<std::thread> readers;
    for (int reader = 0; reader < 4; ++reader) {
        readers.emplace_back([&] {
            do {
                const Page<MovieRecord> page = videos->movies(Role::Movies, everything());
                if (page.total < kFilmsOfAFolder || page.total % kFilmsOfAFolder != 0
                    || page.rows.size() != page.total)
                    ++wrong;
            } while (!done);
        });
    }
    storeMany(4 * kFilmsOfAFolder);
    done = true;
    for (std::thread &reader : readers)
        reader.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(videos->movies(Role::Movies, everything()).total, 4 * kFilmsOfAFolder);
}
