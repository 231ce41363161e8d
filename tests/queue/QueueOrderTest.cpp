#include "queue/QueueOrder.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using Place = QueueOrder::Place;

QueueOrder::Queue plain(int count, std::set<int> gone = {})
{
    return {count, [](int) { return 0; }, [gone](int row) { return gone.count(row) > 0; }};
}

// Row 1 is a disc with three titles.
QueueOrder::Queue withDisc(int count)
{
    return {count, [](int row) { return row == 1 ? 3 : 0; }, [](int) { return false; }};
}

struct EndRow {
    const char *name;
    int loop;
    int current;
    int count;
    int expected;
};

void PrintTo(const EndRow &row, std::ostream *stream)
{
    *stream << row.name;
}

class AfterEnd : public testing::TestWithParam<EndRow> {};

} // namespace

TEST_P(AfterEnd, FollowsTheLoopType)
{
    const EndRow row = GetParam();
    const QueueOrder order([] { return 8; });
    EXPECT_EQ(order.afterEnd(row.loop, {row.current, -1}, plain(row.count)).row, row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AfterEnd,
    testing::Values(EndRow{"OnceEnds", 0, 0, 3, -1}, EndRow{"SequenceGoesToTheNext", 1, 0, 3, 1},
                    EndRow{"SequenceEndsAtTheLastRow", 1, 2, 3, -1},
                    EndRow{"ShuffleIsTheNumberModuloTheRows", 2, 0, 3, 2},
                    EndRow{"ShuffleMayPickTheSameRowAgain", 2, 2, 3, 2},
                    EndRow{"ShuffleWithOneRowPlaysItAgain", 2, 0, 1, 0}, EndRow{"RepeatOneStays", 3, 1, 3, 1},
                    EndRow{"RepeatAllGoesToTheNext", 4, 0, 3, 1},
                    EndRow{"RepeatAllBeginsAnewAtTheLastRow", 4, 2, 3, 0},
                    EndRow{"RepeatAllWithOneRowPlaysItAgain", 4, 0, 1, 0},
                    EndRow{"AnUnknownTypeEnds", 5, 0, 3, -1}, EndRow{"ANegativeTypeEnds", -1, 0, 3, -1},
                    EndRow{"WithoutACurrentRowItEnds", 4, -1, 3, -1}, EndRow{"AnEmptyQueueEnds", 4, 0, 0, -1},
                    EndRow{"ARowThatIsNotThereAnyMoreEnds", 1, 7, 3, -1}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(QueueOrder, SequenceAndRepeatAllPassOverWhatIsGone)
{
    const QueueOrder order;
    EXPECT_EQ(order.afterEnd(QueueOrder::Sequence, {0, -1}, plain(4, {1, 2})).row, 3);
    EXPECT_EQ(order.afterEnd(QueueOrder::Sequence, {0, -1}, plain(3, {1, 2})).row, -1);
    EXPECT_EQ(order.afterEnd(QueueOrder::RepeatAll, {2, -1}, plain(3, {0})).row, 1);
    EXPECT_EQ(order.afterEnd(QueueOrder::RepeatAll, {1, -1}, plain(3, {0, 1, 2})).row, -1);
}

TEST(QueueOrder, ShuffleGoesOnFromARowThatIsGone)
{
    const QueueOrder order([] { return 1; });
    EXPECT_EQ(order.afterEnd(QueueOrder::Shuffle, {0, -1}, plain(4, {1})).row, 2);
    EXPECT_EQ(order.afterEnd(QueueOrder::Shuffle, {0, -1}, plain(2, {1})).row, 0);
    EXPECT_EQ(order.afterEnd(QueueOrder::Shuffle, {0, -1}, plain(2, {0, 1})).row, -1);
}

TEST(QueueOrder, OfTenThousandMissingFilesNoneIsChosenWhateverRepeats)
{
    const QueueOrder order([] { return 5000; });
    const int current = 4711;
    QueueOrder::Queue queue;
    queue.count = 10000;
    for (const bool isCurrentGone : {false, true}) {
        queue.isGone = [=](int row) { return isCurrentGone || row != current; };
        const Place again = isCurrentGone ? Place() : Place{current, -1};
        for (const int type : {QueueOrder::Sequence, QueueOrder::Shuffle, QueueOrder::RepeatAll}) {
            const Place expected = type == QueueOrder::Sequence ? Place() : again;
            EXPECT_EQ(order.afterEnd(type, {current, -1}, queue), expected) << type;
            EXPECT_EQ(order.next(type, {current, -1}, queue), expected) << type;
        }
        EXPECT_EQ(order.last(QueueOrder::Sequence, {current, -1}, queue), Place());
        EXPECT_EQ(order.last(QueueOrder::RepeatAll, {current, -1}, queue), again);
    }
}

TEST(QueueOrder, ShuffleReachesEveryRow)
{
    const QueueOrder order;
    std::set<int> seen;
    for (int i = 0; i < 2000 && seen.size() < 5; ++i)
        seen.insert(order.afterEnd(QueueOrder::Shuffle, {0, -1}, plain(5)).row);
    EXPECT_EQ(seen, (std::set<int>{0, 1, 2, 3, 4}));
}

TEST(QueueOrder, ATitleIsFollowedByTheNextTitleAndThenByTheNextSource)
{
    const QueueOrder order;
    EXPECT_EQ(order.afterEnd(QueueOrder::Sequence, {1, 0}, withDisc(3)), (Place{1, 1}));
    EXPECT_EQ(order.afterEnd(QueueOrder::Sequence, {1, 2}, withDisc(3)), (Place{2, -1}));
    EXPECT_EQ(order.afterEnd(QueueOrder::Sequence, {1, 2}, withDisc(2)), Place{});
    EXPECT_EQ(order.afterEnd(QueueOrder::RepeatAll, {1, 2}, withDisc(2)), (Place{0, -1}));
    EXPECT_EQ(order.afterEnd(QueueOrder::RepeatOne, {1, 2}, withDisc(2)), (Place{1, 2}));
}

TEST(QueueOrder, ADiscThatPlaysAsAWholeIsFollowedByTheNextSource)
{
    EXPECT_EQ(QueueOrder().afterEnd(QueueOrder::Sequence, {1, -1}, withDisc(3)), (Place{2, -1}));
}

TEST(QueueOrder, TheUserGetsNeighboursWhateverRepeats)
{
    const QueueOrder order;
    for (const int loop : {QueueOrder::Once, QueueOrder::Sequence, QueueOrder::RepeatOne}) {
        EXPECT_EQ(order.next(loop, {1, -1}, plain(3)).row, 2);
        EXPECT_EQ(order.last(loop, {1, -1}, plain(3)).row, 0);
        EXPECT_EQ(order.next(loop, {2, -1}, plain(3)).row, -1);
        EXPECT_EQ(order.last(loop, {0, -1}, plain(3)).row, -1);
    }
    EXPECT_EQ(order.next(QueueOrder::RepeatAll, {2, -1}, plain(3)).row, 0);
    EXPECT_EQ(order.last(QueueOrder::RepeatAll, {0, -1}, plain(3, {2})).row, 1);
    EXPECT_EQ(order.last(QueueOrder::Once, {1, 1}, withDisc(3)), (Place{1, 0}));
    EXPECT_EQ(order.last(QueueOrder::Once, {1, 0}, withDisc(3)), (Place{0, -1}));
}

TEST(QueueOrder, WithoutACurrentRowTheUserGetsTheFirst)
{
    const QueueOrder order;
    EXPECT_EQ(order.next(QueueOrder::Once, {}, plain(3, {0})).row, 1);
    EXPECT_EQ(order.last(QueueOrder::Once, {}, plain(3)).row, 0);
    EXPECT_EQ(order.next(QueueOrder::Once, {}, plain(0)).row, -1);
    EXPECT_EQ(order.next(QueueOrder::Shuffle, {}, plain(0)).row, -1);
}
