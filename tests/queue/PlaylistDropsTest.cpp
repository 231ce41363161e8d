// What is dropped on the panel of the playlist or dragged in it.
#include "PlaylistPanel.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

TEST_F(Panels, DroppedFilesAndFoldersComeWhereTheyAreDropped)
{
    QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir("season"));
    for (const char *name : {"x.mkv", "season/e1.mkv", "season/e2.mkv"})
        QFile(folder.filePath(name)).open(QIODevice::WriteOnly);
    add({"/a.mkv", "/b.mkv"});
    open();
    QMimeData data;
    data.setUrls(
        {QUrl::fromLocalFile(folder.filePath("x.mkv")), QUrl::fromLocalFile(folder.filePath("season"))});
    const QPoint upper = panel->list()->visualRect(row(1)).topLeft() + QPoint(40, 4);
    EXPECT_EQ(panel->list()->dropRowAt(upper), 1);
    drop(panel->list()->viewport(), &data, upper);
    EXPECT_TRUE(wasTaken);
    ASSERT_EVENTUALLY(panel->queue()->model()->sourceCount() == 5);
    EXPECT_EQ(names(), QStringList({"a.mkv", "x.mkv", "e1.mkv", "e2.mkv", "b.mkv"}));
}

TEST_F(Panels, WhatIsNoMediaIsRefusedWithASentence)
{
    QTemporaryDir folder;
    QFile(folder.filePath("notes.txt")).open(QIODevice::WriteOnly);
    open();
    QSignalSpy notices(panel.get(), &NormalPlaylistView::sig_notice);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder.filePath("notes.txt"))});
    drop(panel.get(), &data, QPoint(100, 200));
    ASSERT_TRUE(notices.count() == 1 || notices.wait(Eventually::WaitMs));
    EXPECT_TRUE(notices.at(0).at(0).toString().contains("notes.txt"));
    EXPECT_EQ(panel->queue()->count(), 0);
}

TEST_F(Panels, TwoDropsAreBothTaken)
{
    QTemporaryDir folder;
    for (const char *name : {"x.mkv", "y.mkv"})
        QFile(folder.filePath(name)).open(QIODevice::WriteOnly);
    open();
    for (const char *name : {"x.mkv", "y.mkv"}) {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(folder.filePath(name))});
        drop(panel.get(), &data, QPoint(100, 200));
    }
    ASSERT_EVENTUALLY(panel->queue()->model()->sourceCount() == 2);
}

TEST_F(Panels, TextIsNotTaken)
{
    add({"/a.mkv"});
    open();
    QMimeData data;
    data.setText("words");
    drop(panel->list()->viewport(), &data, at(0));
    EXPECT_FALSE(wasTaken);
    drop(panel.get(), &data, QPoint(100, 200));
    EXPECT_FALSE(wasTaken);
}

TEST_F(Panels, RowsAreDraggedIntoAnotherOrder)
{
    add({"/a.mkv", "/b.mkv", "/c.mkv", "/d.mkv"});
    open();
    panel->queue()->playRow(row(0));
    const std::unique_ptr<QMimeData> data(panel->queue()->model()->mimeData({row(0), row(2)}));
    drop(panel->list()->viewport(), data.get(), QPoint(100, panel->list()->viewport()->height() - 4));
    EXPECT_EQ(names(), QStringList({"b.mkv", "d.mkv", "a.mkv", "c.mkv"}));
    EXPECT_EQ(panel->queue()->playNode().row(), 2);
    const std::unique_ptr<QMimeData> back(panel->queue()->model()->mimeData({row(3)}));
    drop(panel->list()->viewport(), back.get(), panel->list()->visualRect(row(0)).topLeft() + QPoint(40, 4));
    EXPECT_EQ(names(), QStringList({"c.mkv", "b.mkv", "d.mkv", "a.mkv"}));
}

TEST_F(Panels, ADropAmongTheTitlesOfADiscComesBehindTheDisc)
{
    add({"D", "/b.mkv"});
    ASSERT_EVENTUALLY(panel->queue()->model()->titleCount(0) == 3);
    open();
    panel->slot_changeExpandState(row(0));
    const QModelIndex title = panel->queue()->model()->titleIndex(0, 1);
    EXPECT_EQ(panel->list()->dropRowAt(panel->list()->visualRect(title).center()), 1);
}
