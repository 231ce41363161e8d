#include "PlayQueueRig.h"

namespace {

using Model = PlayQueueModel;

} // namespace

// ---- what plays next

TEST_F(PlayQueues, AnEmptyQueueEndsPlaybackAtTheFirstEndOfSource)
{
    setLoop(QueueOrder::RepeatAll);
    EXPECT_EQ(queue->beginSource("/elsewhere.mkv"), -1);
    endOfSource();
    EXPECT_EQ(ends, 1);
    EXPECT_TRUE(played.isEmpty());
}

TEST_F(PlayQueues, ASourceThatIsNoEntryEndsPlaybackToo)
{
    add({"/a.mkv", "/b.mkv"});
    setLoop(QueueOrder::Sequence);
    playRow(0);
    EXPECT_EQ(queue->beginSource("/elsewhere.mkv"), -1);
    EXPECT_FALSE(queue->playNode().isValid());
    endOfSource();
    EXPECT_EQ(ends, 1);
}

TEST_F(PlayQueues, ASourceThatPlaysBeforeItsRowIsThereIsTheCurrentOneOnceItIs)
{
    setLoop(QueueOrder::Sequence);
    queue->add({"/a.mkv", "/b.mkv"});
    EXPECT_EQ(queue->beginSource("/a.mkv"), -1);
    EXPECT_FALSE(queue->playNode().isValid());
    ASSERT_EVENTUALLY(!queue->isAppending() && !queue->isChecking());
    EXPECT_EQ(queue->playNode().row(), 0);
    endOfSource();
    EXPECT_EQ(ends, 0);
    EXPECT_EQ(queue->playNode().row(), 1);
}

TEST_F(PlayQueues, ASourceThatPlaysBeforeTheStoredQueueIsReadIsTheCurrentOneOnceItIs)
{
    add({"/a.mkv", "/b.mkv"});
    setLoop(QueueOrder::Sequence);
    queue->save();
    make();
    EXPECT_EQ(queue->beginSource("/a.mkv"), -1);
    queue->load();
    ASSERT_EVENTUALLY(!queue->isAppending() && queue->model()->sourceCount() == 2);
    EXPECT_EQ(queue->playNode().row(), 0);
}

TEST_F(PlayQueues, SequenceAtTheLastRowEndsPlayback)
{
    add({"/a.mkv", "/b.mkv"});
    setLoop(QueueOrder::Sequence);
    playRow(0);
    endOfSource();
    EXPECT_EQ(played, QStringList("/b.mkv -1"));
    EXPECT_EQ(ends, 0);
    endOfSource();
    EXPECT_EQ(ends, 1);
    EXPECT_EQ(played.size(), 1);
}

TEST_F(PlayQueues, RepeatAllAtTheLastRowGoesToRowZero)
{
    add({"/a.mkv", "/b.mkv"});
    setLoop(QueueOrder::RepeatAll);
    playRow(1);
    endOfSource();
    EXPECT_EQ(played, QStringList("/a.mkv -1"));
}

TEST_F(PlayQueues, ShuffleWithOneRowPlaysThatRowAgain)
{
    add({"/a.mkv"});
    setLoop(QueueOrder::Shuffle);
    random = 12345;
    playRow(0);
    endOfSource();
    EXPECT_EQ(played, QStringList("/a.mkv -1"));
}

TEST_F(PlayQueues, OnceEndsAndSoDoesAnUnknownType)
{
    add({"/a.mkv", "/b.mkv"});
    for (const int type : {0, 5, -3}) {
        setLoop(type);
        playRow(0);
        endOfSource();
        EXPECT_TRUE(played.isEmpty());
    }
    EXPECT_EQ(ends, 3);
}

TEST_F(PlayQueues, RepeatOnePlaysTheTitleAgain)
{
    add({"D"});
    ASSERT_EVENTUALLY(queue->model()->titleCount(0) == 3);
    setLoop(QueueOrder::RepeatOne);
    const QModelIndex title = queue->model()->titleIndex(0, 3);
    queue->playRow(title);
    EXPECT_EQ(played, QStringList("D 3"));
    EXPECT_EQ(queue->pendingTitle(), 3);
    EXPECT_EQ(queue->beginSource("D:/"), 3);
    EXPECT_EQ(queue->pendingTitle(), PlayQueue::NoTitle);
    played.clear();
    endOfSource();
    EXPECT_EQ(played, QStringList("D 3"));
}

TEST_F(PlayQueues, TheTitleIsPendingWhileTheNextEntryIsChosen)
{
    add({"/a.mkv", "/b.mkv"});
    setLoop(QueueOrder::Shuffle);
    playRow(0);
    int during = 0;
    PlayQueue::Services services;
    services.random = [&] {
        during = queue->pendingTitle();
        return 1;
    };
    services.exists = [](const QString &) { return true; };
    queue = std::make_unique<PlayQueue>(*settings, services);
    queue->add({"/a.mkv", "/b.mkv"});
    ASSERT_EVENTUALLY(queue->model()->sourceCount() == 2 && !queue->isChecking());
    queue->autoPlayNext(queue->model()->index(0));
    EXPECT_EQ(during, PlayQueue::Choosing);
    EXPECT_EQ(queue->pendingTitle(), -1);
}

TEST_F(PlayQueues, ARequestThatWasDroppedLeavesTheEntryThatPlays)
{
    add({"/a.mkv", "/b.mkv", "/c.mkv"});
    playRow(0);
    queue->playRow(queue->model()->index(2));
    queue->requestRefused();
    EXPECT_EQ(queue->playNode().row(), 0);
}

TEST_F(PlayQueues, RemovingTheRowThatPlaysEndsPlaybackAtItsEnd)
{
    add({"/a.mkv", "/b.mkv", "/c.mkv"});
    setLoop(QueueOrder::RepeatAll);
    playRow(1);
    queue->remove({queue->model()->index(1)});
    EXPECT_FALSE(queue->playNode().isValid());
    EXPECT_FALSE(queue->markedNode().isValid());
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Title, "1");
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Time, "00:00:01 / 00:10:00");
    endOfSource();
    EXPECT_EQ(ends, 1);
}

TEST_F(PlayQueues, RemovingAnotherRowMovesThePlayingOneAlong)
{
    add({"/a.mkv", "/b.mkv", "/c.mkv"});
    setLoop(QueueOrder::Sequence);
    playRow(1);
    queue->remove({queue->model()->index(0)});
    EXPECT_EQ(queue->playNode().row(), 0);
    endOfSource();
    EXPECT_EQ(played, QStringList("/c.mkv -1"));
}

TEST_F(PlayQueues, ANewOrderKeepsThePlayingRow)
{
    add({"/c.mkv", "/a.mkv", "/b.mkv"});
    setLoop(QueueOrder::Sequence);
    playRow(0);
    queue->sortBy(0);
    EXPECT_EQ(queue->playNode().row(), 2);
    queue->moveRows({2}, 0);
    EXPECT_EQ(queue->playNode().row(), 0);
    endOfSource();
    EXPECT_EQ(played, QStringList("/a.mkv -1"));
}

TEST_F(PlayQueues, NextAndLastAreTheNeighbours)
{
    add({"/a.mkv", "/b.mkv"});
    queue->playNext(queue->playNode());
    EXPECT_EQ(played, QStringList("/a.mkv -1"));
    queue->playNext(queue->playNode());
    queue->playNext(queue->playNode());
    EXPECT_EQ(played, QStringList({"/a.mkv -1", "/b.mkv -1"}));
    queue->playLast(queue->playNode());
    EXPECT_EQ(played.last(), "/a.mkv -1");
    EXPECT_EQ(ends, 0);
}

// ---- marks

TEST_F(PlayQueues, TheRowIsMarkedFromStatusOneOn)
{
    add({"/a.mkv"});
    queue->playRow(queue->model()->index(0));
    queue->beginSource("/a.mkv");
    EXPECT_EQ(queue->mark(), PlayQueue::Mark::None);
    queue->setStatus(QPlayer::QPlayerStatus_Playing);
    EXPECT_EQ(queue->mark(), PlayQueue::Mark::Playing);
    EXPECT_EQ(queue->markedNode().row(), 0);
    queue->setStatus(QPlayer::QPlayerStatus_Paused);
    EXPECT_EQ(queue->mark(), PlayQueue::Mark::Paused);
    queue->setStatus(QPlayer::QPlayerStatus_Rewind);
    EXPECT_EQ(queue->mark(), PlayQueue::Mark::Playing);
    queue->setStatus(QPlayer::QPlayerStatus_Stopped);
    EXPECT_EQ(queue->mark(), PlayQueue::Mark::None);
    EXPECT_TRUE(queue->playNode().isValid()) << "what comes next still counts from here";
}

TEST_F(PlayQueues, TheMarkFollowsTheTitleOfADiscAndTheOrderDoesNot)
{
    add({"D", "/z.mkv"});
    ASSERT_EVENTUALLY(queue->model()->titleCount(0) == 3);
    setLoop(QueueOrder::Sequence);
    playRow(0);
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Title, "2");
    EXPECT_EQ(queue->markedNode(), queue->model()->titleIndex(0, 2));
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Title, "None");
    EXPECT_EQ(queue->markedNode(), queue->model()->index(0));
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Title, "77");
    EXPECT_EQ(queue->markedNode(), queue->model()->index(0));
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Title, "2");
    endOfSource();
    EXPECT_EQ(played, QStringList("/z.mkv -1"));
}

TEST_F(PlayQueues, ATitleThatWasAskedForMovesOnWithItsDisc)
{
    add({"D", "/z.mkv"});
    ASSERT_EVENTUALLY(queue->model()->titleCount(0) == 3);
    setLoop(QueueOrder::Sequence);
    queue->playRow(queue->model()->titleIndex(0, 1));
    queue->beginSource("D");
    queue->setStatus(QPlayer::QPlayerStatus_Playing);
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Title, "2");
    EXPECT_EQ(queue->playNode(), queue->model()->titleIndex(0, 2));
    played.clear();
    endOfSource();
    EXPECT_EQ(played, QStringList("D 3"));
}

TEST_F(PlayQueues, TheTimeTellsTheLengthOfTheRowThatPlays)
{
    add({"/a.mkv", "/b.mkv"});
    playRow(1);
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Time, "00:00:05 / 01:30:00");
    EXPECT_EQ(queue->model()->index(1).data(Model::SecondsRole).toInt(), 5400);
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Time, "rubbish");
    queue->setMetaInfo(QPlayer::QPlayerMetaType_Audio, "00:00:05 / 02:30:00");
    EXPECT_EQ(queue->model()->index(1).data(Model::SecondsRole).toInt(), 5400);
    EXPECT_EQ(queue->model()->index(0).data(Model::SecondsRole).toInt(), 0);
}

// ---- discs

TEST_F(PlayQueues, ADiscThatIsAddedGetsItsTitlesOffTheWindowsThread)
{
    add({"/a.mkv", "/films/disc.iso"});
    ASSERT_EVENTUALLY(queue->model()->titleCount(1) == 3);
    EXPECT_EQ(queue->model()->index(1, 0, queue->model()->index(1)).data().toString(), "Title 2 (Main)");
    EXPECT_EQ(world->asks, 1);
    EXPECT_FALSE(world->onGuiThread);
}

TEST_F(PlayQueues, StoredDiscsAreAskedWhenTheyPlayAndNotBefore)
{
    settings->setValue(SettingsKeys::PC_Playlist, QVariantMap{{"D", 2}, {"/a.iso", 0}});
    make();
    tester.reset(); // it asks for everything that there is to know
    queue->load();
    ASSERT_EVENTUALLY(queue->model()->sourceCount() == 2);
    ASSERT_EVENTUALLY(world->looks >= 1);
    EXPECT_EQ(world->asks, 0);
    playRow(queue->model()->rowOf("D"));
    ASSERT_EVENTUALLY(queue->model()->titleCount(queue->model()->rowOf("D")) == 3);
    EXPECT_EQ(world->asks, 1);
}

TEST_F(PlayQueues, OfManyDiscsOnlySomeAreAskedAtOnce)
{
    QStringList discs;
    for (int i = 0; i < 100; ++i)
        discs << QStringLiteral("/films/%1.iso").arg(i);
    tester.reset(); // it asks for everything that there is to know
    add(discs);
    ASSERT_EVENTUALLY(queue->model()->titleCount(15) == 3);
    EXPECT_EQ(world->asks, 16);
    queue->askTitles("/films/99.iso");
    ASSERT_EVENTUALLY(queue->model()->titleCount(99) == 3);
    EXPECT_EQ(world->asks, 17);
}

TEST_F(PlayQueues, WithoutAnEngineADiscHasNoTitlesAndPlays)
{
    queue = std::make_unique<PlayQueue>(*settings, PlayQueue::Services());
    queue->add({"D"});
    ASSERT_EVENTUALLY(queue->model()->sourceCount() == 1);
    QSignalSpy wanted(queue.get(), &PlayQueue::playSource);
    queue->playRow(queue->model()->index(0));
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.at(0).at(1).toInt(), -1);
}

TEST_F(PlayQueues, AnEjectedDiscGoesWithItsTitles)
{
    add({"/a.mkv", "D", "/films/d.mkv"});
    ASSERT_EVENTUALLY(queue->model()->titleCount(1) == 3);
    queue->playRow(queue->model()->titleIndex(1, 2));
    queue->removeDisc("d:\\");
    EXPECT_EQ(names(), QStringList({"a.mkv", "d.mkv"}));
    EXPECT_FALSE(queue->playNode().isValid());
    EXPECT_FALSE(queue->store().contains("D"));
    queue->removeDisc("E");
    EXPECT_EQ(queue->count(), 2);
}

TEST_F(PlayQueues, ADiscThatGoesBeforeItHasItsRowNeverGetsOne)
{
    queue->add({"/a.mkv", "D", "/b.mkv"});
    queue->removeDisc("D");
    ASSERT_EVENTUALLY(!queue->isAppending());
    EXPECT_EQ(names(), QStringList({"a.mkv", "b.mkv"}));
    EXPECT_EQ(queue->count(), 2);
}

// ---- what is gone

TEST_F(PlayQueues, GoneRowsAreFoundOffTheWindowsThreadAndPassedOver)
{
    lose({"/b.mkv"});
    add({"/a.mkv", "/b.mkv", "/c.mkv"});
    ASSERT_EVENTUALLY(queue->model()->index(1).data(Model::InvalidRole).toBool());
    EXPECT_FALSE(queue->model()->index(0).data(Model::InvalidRole).toBool());
    EXPECT_FALSE(world->onGuiThread);
    setLoop(QueueOrder::Sequence);
    playRow(0);
    endOfSource();
    EXPECT_EQ(played, QStringList("/c.mkv -1"));
}

TEST_F(PlayQueues, RemoveInvalidLooksAnewAndKeepsWhatHasComeBack)
{
    lose({"/b.mkv", "/c.mkv"});
    add({"/a.mkv", "/b.mkv", "/c.mkv"});
    ASSERT_EVENTUALLY(queue->model()->goneRows().size() == 2);
    lose({"/a.mkv", "/c.mkv"});
    queue->removeInvalid();
    ASSERT_EVENTUALLY(queue->count() == 1);
    EXPECT_EQ(names(), QStringList("b.mkv"));
}

TEST_F(PlayQueues, WhatGoesLaterStaysAfterRemoveInvalid)
{
    lose({"/b.mkv"});
    add({"/a.mkv", "/b.mkv", "/c.mkv"});
    queue->removeInvalid();
    ASSERT_EVENTUALLY(queue->count() == 2);
    ASSERT_EVENTUALLY(!queue->isChecking());
    lose({"/c.mkv"});
    queue->checkPresence();
    ASSERT_EVENTUALLY(queue->model()->goneRows().size() == 1);
    EXPECT_EQ(names(), QStringList({"a.mkv", "c.mkv"}));
}

TEST_F(PlayQueues, TenThousandMissingFilesGoWithoutHoldingTheWindowUp)
{
    std::set<QString> gone;
    QStringList paths;
    for (int i = 0; i < 10000; ++i) {
        paths << QStringLiteral("/films/Film %1.mkv").arg(i);
        gone.insert(paths.last());
    }
    paths << "/there.mkv";
    lose(gone);
    tester.reset();
    queue->add(paths);
    ASSERT_EVENTUALLY(queue->model()->goneRows().size() == 10000);
    QSignalSpy removals(queue->model(), &QAbstractItemModel::rowsRemoved);
    queue->removeInvalid();
    ASSERT_EVENTUALLY(queue->count() == 1);
    EXPECT_EQ(names(), QStringList("there.mkv"));
    EXPECT_LT(removals.count(), 2000) << "rows go together and not one by one";
    EXPECT_FALSE(world->onGuiThread);
}

TEST_F(PlayQueues, RemoveAllWhileTheyAreBeingLookedAtIsSilent)
{
    add({"/a.mkv", "/b.mkv"});
    queue->removeInvalid();
    queue->removeAll();
    EXPECT_EQ(queue->model()->sourceCount(), 0);
    queue->add({"/c.mkv"});
    ASSERT_EVENTUALLY(queue->model()->sourceCount() == 1);
}

// ---- rows

TEST_F(PlayQueues, SourcesAreThereAtOnceAndTheirRowsFollow)
{
    QSignalSpy counts(queue.get(), &PlayQueue::countChanged);
    queue->add({"/a.mkv", "/b.mkv"});
    EXPECT_EQ(queue->count(), 2);
    EXPECT_EQ(queue->model()->sourceCount(), 0);
    EXPECT_EQ(counts.count(), 1);
    ASSERT_EVENTUALLY(queue->model()->sourceCount() == 2);
}

TEST_F(PlayQueues, SourcesComeInFrontOfARow)
{
    add({"/a.mkv", "/b.mkv"});
    queue->add({"/x.mkv", "/y.mkv"}, 1);
    queue->add({"/z.mkv"}, 99);
    ASSERT_EVENTUALLY(!queue->isAppending());
    EXPECT_EQ(names(), QStringList({"a.mkv", "x.mkv", "y.mkv", "b.mkv", "z.mkv"}));
}

TEST_F(PlayQueues, RemoveAllAlsoTakesWhatHasNoRowYet)
{
    queue->add({"/a.mkv", "/b.mkv"});
    queue->removeAll();
    ASSERT_EVENTUALLY(!queue->isAppending());
    EXPECT_EQ(queue->model()->sourceCount(), 0);
    EXPECT_EQ(queue->count(), 0);
}

TEST_F(PlayQueues, TheQueueComesBackAfterARestart)
{
    add({"/b.mkv", "smb://box/c.mkv", "/a.mkv"});
    queue->save();
    make();
    queue->load();
    ASSERT_EVENTUALLY(queue->model()->sourceCount() == 3);
    EXPECT_EQ(names(), QStringList({"a.mkv", "b.mkv", "c.mkv"}));
    EXPECT_EQ(queue->model()->path(2), "smb://box/c.mkv");
}

TEST_F(PlayQueues, SavedBeforeItsRowsAreThereNothingIsLost)
{
    queue->add({"/b.mkv", "/a.mkv"});
    queue->save();
    make();
    queue->load();
    EXPECT_EQ(queue->count(), 2);
}

TEST_F(PlayQueues, EndsInTheMiddleOfEverything)
{
    QStringList paths;
    for (int i = 0; i < 30000; ++i)
        paths << QStringLiteral("/films/%1.iso").arg(i);
    tester.reset();
    queue->add(paths);
    QCoreApplication::processEvents();
    queue.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(world->onGuiThread);
}
