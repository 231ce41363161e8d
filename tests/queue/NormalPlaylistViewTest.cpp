// The panel of the playlist: its comings and goings, its looks, the mouse and the link to the player.
#include "PlaylistPanel.h"

#include "queue/NormalPlaylistListDelegate.h"
#include "queue/QueueHead.h"
#include "queue/QueueListView.h"

#include "core/SettingsKeys.h"
#include "transport/TransportButton.h"
#include "ui/OverlayHost.h"

#include <QLabel>
#include <QListView>
#include <QSignalSpy>

// ---- open and closed

TEST_F(Panels, OpensAndClosesAndTellsBoth)
{
    QSignalSpy states(panel.get(), &NormalPlaylistView::sig_widgetStateChanged);
    QSignalSpy behaviour(panel.get(), &NormalPlaylistView::sig_userBehaviour);
    EXPECT_FALSE(panel->isVisible());
    panel->open();
    panel->open();
    EXPECT_TRUE(panel->isVisible());
    ASSERT_EVENTUALLY(panel->cardRect().left() == 0);
    panel->close();
    EXPECT_TRUE(panel->isVisible()) << "it goes when its animation is over";
    ASSERT_EVENTUALLY(!panel->isVisible());
    panel->close();
    ASSERT_EQ(states.count(), 2);
    EXPECT_TRUE(states.at(0).at(0).toBool());
    EXPECT_FALSE(states.at(1).at(0).toBool());
    ASSERT_EQ(behaviour.count(), 1);
    EXPECT_EQ(behaviour.at(0).at(0).toString(), "PlaylistUsed");
    EXPECT_EQ(behaviour.at(0).at(1).toString(), "true");
}

TEST_F(Panels, OnItsWayOutItTurnsRound)
{
    open();
    panel->close();
    panel->open();
    ASSERT_EVENTUALLY(panel->cardRect().left() == 0);
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(Panels, WhatHidesAllOverlaysClosesItAtOnce)
{
    open();
    QSignalSpy states(panel.get(), &NormalPlaylistView::sig_widgetStateChanged);
    panel->disappear();
    EXPECT_FALSE(panel->isOpen());
    ASSERT_EQ(states.count(), 1);
    EXPECT_FALSE(states.at(0).at(0).toBool());
    panel->open();
    EXPECT_TRUE(panel->isVisible());
}

TEST_F(Panels, WithoutBlendingItComesAndGoesAtOnce)
{
    panel->setCompact(true);
    panel->open();
    EXPECT_EQ(panel->cardRect().left(), 0);
    EXPECT_FALSE(panel->opaqueShape().isEmpty());
    panel->close();
    EXPECT_FALSE(panel->isVisible());
}

TEST_F(Panels, StandsAtTheRightBetweenTitleAndBar)
{
    QWidget window;
    window.resize(1024, 576);
    OverlayHost host(&window);
    NormalPlaylistView *hosted = panel.release();
    host.add(hosted, NormalPlaylistView::rule(1));
    window.show();
    hosted->open();
    const QRect area = host.areaRect();
    EXPECT_EQ(hosted->geometry().right(), area.right());
    EXPECT_EQ(hosted->geometry().top(), area.top() + 56);
    EXPECT_EQ(hosted->geometry().bottom(), area.bottom() - 140);
    EXPECT_FALSE(hosted->takesMouseAt(QPoint(hosted->width() - 4, 100))) << "beside the card is the picture";
}

TEST_F(Panels, EmptyItSaysSo)
{
    open();
    EXPECT_TRUE(panel->findChild<QWidget *>(QStringLiteral("playlistRows"))->isHidden()
                || !panel->list()->isVisible());
    add({"/a.mkv"});
    EXPECT_TRUE(panel->list()->isVisible());
    EXPECT_EQ(panel->head()->countLabel()->text(), "1");
    panel->queue()->removeAll();
    EXPECT_FALSE(panel->list()->isVisible());
    EXPECT_EQ(panel->head()->countLabel()->text(), "");
}

// ---- mouse

TEST_F(Panels, ADoubleClickPlays)
{
    add({"/a.mkv", "/b.mkv"});
    open();
    QSignalSpy plays(panel.get(), &NormalPlaylistView::sig_playSource);
    click(1);
    EXPECT_TRUE(plays.isEmpty());
    QTest::mouseDClick(panel->list()->viewport(), Qt::LeftButton, Qt::NoModifier, at(1));
    ASSERT_EQ(plays.count(), 1);
    EXPECT_EQ(plays.at(0).at(0).toString(), "/b.mkv");
    EXPECT_EQ(plays.at(0).at(1).toInt(), -1);
    EXPECT_EQ(panel->selectNode().row(), 1);
}

TEST_F(Panels, TheMarkOfADiscFoldsItAndPlaysNothing)
{
    add({"D", "/b.mkv"});
    ASSERT_EVENTUALLY(panel->queue()->model()->titleCount(0) == 3);
    open();
    QSignalSpy plays(panel.get(), &NormalPlaylistView::sig_playSource);
    const QRect mark = NormalPlaylistListDelegate::expandRect(panel->list()->visualRect(row(0)), row(0));
    ASSERT_FALSE(mark.isEmpty());
    EXPECT_TRUE(NormalPlaylistListDelegate::expandRect(panel->list()->visualRect(row(1)), row(1)).isEmpty());
    QTest::mouseClick(panel->list()->viewport(), Qt::LeftButton, Qt::NoModifier, mark.center());
    EXPECT_TRUE(panel->list()->isExpanded(row(0)));
    // Two more, fast: folded up and open again.
    QTest::mouseDClick(panel->list()->viewport(), Qt::LeftButton, Qt::NoModifier, mark.center());
    EXPECT_TRUE(panel->list()->isExpanded(row(0)));
    EXPECT_TRUE(plays.isEmpty());
    panel->slot_changeExpandState(row(0));
    EXPECT_FALSE(panel->list()->isExpanded(row(0)));
}

TEST_F(Panels, ATitleIsPlayedByItsNumber)
{
    add({"D"});
    ASSERT_EVENTUALLY(panel->queue()->model()->titleCount(0) == 3);
    open();
    panel->slot_changeExpandState(row(0));
    QSignalSpy plays(panel.get(), &NormalPlaylistView::sig_playSource);
    const QModelIndex title = panel->queue()->model()->titleIndex(0, 2);
    panel->list()->scrollTo(title);
    QTest::mouseDClick(panel->list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                       panel->list()->visualRect(title).center());
    ASSERT_EQ(plays.count(), 1);
    EXPECT_EQ(plays.at(0).at(1).toInt(), 2);
    EXPECT_EQ(panel->beginSource("D"), 2);
}

// ---- looks

TEST_F(Panels, BothLooksShowOneSelectionAndOneCurrentRow)
{
    add({"/a.mkv", "/b.mkv"});
    open();
    click(1);
    panel->queue()->playRow(row(0));
    EXPECT_EQ(panel->delegateInUse()->currentIndex(), row(0));
    QTest::mouseClick(panel->head()->lookButton(), Qt::LeftButton);
    EXPECT_TRUE(panel->isGrid());
    EXPECT_TRUE(panel->grid()->isVisible());
    EXPECT_EQ(panel->grid()->selectionModel(), panel->list()->selectionModel());
    EXPECT_EQ(panel->delegateInUse()->currentIndex(), row(0));
    QSignalSpy plays(panel.get(), &NormalPlaylistView::sig_playSource);
    settings->setValue(SettingsKeys::PC_PlaylistLoopType, 1);
    panel->slot_autoPlayNext();
    ASSERT_EQ(plays.count(), 1);
    EXPECT_EQ(plays.at(0).at(0).toString(), "/b.mkv");
    panel->setGrid(false);
    EXPECT_TRUE(panel->list()->isVisible());
}

TEST_F(Panels, TheGridPlaysByDoubleClickAndKey)
{
    add({"/a.mkv", "/b.mkv", "/c.mkv"});
    open();
    panel->setGrid(true);
    QApplication::processEvents();
    QSignalSpy plays(panel.get(), &NormalPlaylistView::sig_playSource);
    const QRect tile = panel->grid()->visualRect(row(1));
    EXPECT_GT(tile.left(), panel->grid()->visualRect(row(0)).left()) << "two stand beside each other";
    QTest::mouseClick(panel->grid()->viewport(), Qt::LeftButton, Qt::NoModifier, tile.center());
    QTest::mouseDClick(panel->grid()->viewport(), Qt::LeftButton, Qt::NoModifier, tile.center());
    ASSERT_EQ(plays.count(), 1);
    EXPECT_TRUE(key(Qt::Key_Return, "\r"));
    EXPECT_EQ(plays.count(), 2);
    EXPECT_TRUE(key(Qt::Key_Delete));
    EXPECT_EQ(names(), QStringList({"a.mkv", "c.mkv"}));
}

// ---- the link to the player

TEST_F(Panels, EndOfSourceGoesThroughTheDelegateInUse)
{
    QSignalSpy ends(panel.get(), &NormalPlaylistView::sig_PlayBackEnd);
    panel->slot_autoPlayNext();
    EXPECT_EQ(ends.count(), 1);
    settings->setValue(SettingsKeys::PC_PlaylistLoopType, 4);
    add({"/a.mkv"});
    panel->beginSource("/a.mkv");
    panel->slot_setPlayStatus(QPlayer::QPlayerStatus_Playing);
    QSignalSpy plays(panel.get(), &NormalPlaylistView::sig_playSource);
    panel->slot_autoPlayNext();
    EXPECT_EQ(plays.count(), 1);
    EXPECT_EQ(ends.count(), 1);
}

TEST_F(Panels, MusicOfTheLibraryIsAdded)
{
    panel->slot_addMusicPlaylist(QList<QString>({"2_/music/album.cue", "/music/b.flac"}));
    ASSERT_EVENTUALLY(panel->queue()->model()->sourceCount() == 2);
    EXPECT_EQ(names(), QStringList({"album.cue - 2", "b.flac"}));
}

TEST_F(Panels, ADiscThatPlaysShowsItsTitlesByItself)
{
    settings->setValue(SettingsKeys::PC_Playlist, QVariantMap{{"D", 2}});
    panel->queue()->load();
    ASSERT_EVENTUALLY(panel->queue()->model()->sourceCount() == 1);
    open();
    panel->beginSource("D:/");
    panel->slot_setPlayStatus(QPlayer::QPlayerStatus_Playing);
    ASSERT_EVENTUALLY(panel->list()->isExpanded(row(0)));
    panel->slot_setMetaInfo(QPlayer::QPlayerMetaType_Title, "3");
    EXPECT_EQ(panel->queue()->markedNode(), panel->queue()->model()->titleIndex(0, 3));
    panel->slot_removeDiscList("D");
    EXPECT_EQ(panel->queue()->count(), 0);
}

TEST_F(Panels, TenThousandRowsScrollAndPaintOnlyWhatIsSeen)
{
    QStringList paths;
    for (int i = 0; i < 10000; ++i)
        paths << QStringLiteral("/films/Film %1.mkv").arg(i);
    open();
    add(paths);
    panel->list()->scrollToBottom();
    EXPECT_EQ(panel->list()->indexAt(QPoint(50, panel->list()->viewport()->height() - 10)).row(), 9999);
    EXPECT_EQ(panel->head()->countLabel()->text(), QLocale().toString(10000));
}
