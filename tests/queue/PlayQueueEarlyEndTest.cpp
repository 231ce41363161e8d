// The list is still being looked through when the first source ends.
#include "PlayQueueRig.h"

namespace {

using Model = PlayQueueModel;

class EarlyEnds : public PlayQueues {
protected:
    ~EarlyEnds() override { hold({}); }

    void endEarly(const std::set<QString> &slow)
    {
        setLoop(QueueOrder::Sequence);
        hold(slow);
        queue->add({"/a.mkv", "/b.mkv", "/c.mkv"});
        ASSERT_EVENTUALLY(queue->model()->sourceCount() == 3);
        playRow(0);
        endOfSource();
        ASSERT_TRUE(queue->isNextDue());
        EXPECT_TRUE(played.isEmpty());
    }
};

} // namespace

TEST_F(EarlyEnds, ARowThatNobodyHasLookedAtWaitsForItsAnswer)
{
    endEarly({"/b.mkv"});
    hold({});
    ASSERT_EVENTUALLY(!played.isEmpty());
    EXPECT_EQ(played, QStringList("/b.mkv -1"));
    EXPECT_FALSE(queue->isNextDue());
}

TEST_F(EarlyEnds, ARowThatTurnsOutToBeGoneIsPassedOver)
{
    lose({"/b.mkv"});
    endEarly({"/b.mkv", "/c.mkv"});
    hold({"/c.mkv"});
    ASSERT_EVENTUALLY(queue->model()->presence(1) == Model::Presence::Gone);
    hold({});
    ASSERT_EVENTUALLY(!played.isEmpty());
    EXPECT_EQ(played, QStringList("/c.mkv -1"));
    EXPECT_EQ(ends, 0);
}

TEST_F(EarlyEnds, WithAllOthersGonePlaybackEnds)
{
    lose({"/b.mkv", "/c.mkv"});
    endEarly({"/b.mkv"});
    hold({});
    ASSERT_EVENTUALLY(ends == 1);
    EXPECT_TRUE(played.isEmpty());
    EXPECT_EQ(queue->pendingTitle(), PlayQueue::NoTitle);
}

TEST_F(EarlyEnds, ADriveThatNeverAnswersIsTriedAfterAWhile)
{
    endEarly({"/b.mkv", "/c.mkv"});
    ASSERT_EVENTUALLY(!played.isEmpty());
    EXPECT_EQ(played, QStringList("/b.mkv -1"));
}

TEST_F(EarlyEnds, TheOneThatHasJustPlayedWaitsForNothing)
{
    setLoop(QueueOrder::RepeatOne);
    hold({"/a.mkv"});
    queue->add({"/a.mkv", "/b.mkv"});
    ASSERT_EVENTUALLY(queue->model()->sourceCount() == 2);
    playRow(0);
    endOfSource();
    EXPECT_FALSE(queue->isNextDue());
    EXPECT_EQ(played, QStringList("/a.mkv -1"));
}

TEST_F(EarlyEnds, WhatTheUserPlaysInsteadIsAllThatPlays)
{
    endEarly({"/b.mkv"});
    queue->playRow(queue->model()->index(2));
    EXPECT_FALSE(queue->isNextDue());
    hold({});
    ASSERT_EVENTUALLY(!queue->isChecking());
    EXPECT_EQ(played, QStringList("/c.mkv -1"));
}

TEST_F(EarlyEnds, ASourceFromElsewhereTakesItsPlace)
{
    endEarly({"/b.mkv"});
    EXPECT_EQ(queue->beginSource("/elsewhere.mkv"), PlayQueue::NoTitle);
    hold({});
    ASSERT_EVENTUALLY(!queue->isChecking());
    EXPECT_TRUE(played.isEmpty());
}

TEST_F(EarlyEnds, AUserWhoGoesBackIsNotFollowed)
{
    endEarly({"/b.mkv"});
    queue->dropNext();
    EXPECT_EQ(queue->pendingTitle(), PlayQueue::NoTitle);
    hold({});
    ASSERT_EVENTUALLY(!queue->isChecking());
    EXPECT_TRUE(played.isEmpty());
    EXPECT_EQ(ends, 0);
}

TEST_F(EarlyEnds, RowsThatAreRemovedMeanwhileAreNotPlayed)
{
    endEarly({"/b.mkv", "/c.mkv"});
    queue->remove({queue->model()->index(1)});
    EXPECT_TRUE(queue->isNextDue());
    queue->removeAll();
    EXPECT_FALSE(queue->isNextDue());
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(played.isEmpty());
}
