#include "PlayQueueRig.h"

#include "queue/PlayQueueModel.h"

#include <QAbstractItemModelTester>
#include <QDir>
#include <QMimeData>
#include <QPersistentModelIndex>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace {

using Model = PlayQueueModel;

class Queues : public testing::Test {
protected:
    Model model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Warning};

    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (int row = 0; row < model.sourceCount(); ++row)
            result << model.index(row).data().toString();
        return result;
    }
};

} // namespace

TEST_F(Queues, RowsKeepPathNameAndTitleNumber)
{
    model.insert({"smb://box/a.mkv", "/films/b.mkv"});
    const QModelIndex first = model.index(0);
    EXPECT_EQ(first.data(Model::PathRole).toString(), "smb://box/a.mkv");
    EXPECT_EQ(first.data().toString(), "a.mkv");
    EXPECT_EQ(first.data(Model::TitleNumberRole).toInt(), -1);
    EXPECT_EQ(model.index(1).data(Model::FolderRole).toString(), QDir::toNativeSeparators("/films"));
    EXPECT_FALSE(first.data(Model::InvalidRole).toBool());
}

TEST_F(Queues, TitlesStandBelowTheirDiscWithTheMainOneMarked)
{
    model.insert({"/films/a.mkv", "D", "/films/c.mkv"});
    EXPECT_TRUE(model.hasChildren(model.index(1)));
    EXPECT_FALSE(model.hasChildren(model.index(0)));
    model.setTitles("D", disc(3, 2));
    const QModelIndex source = model.index(1);
    ASSERT_EQ(model.rowCount(source), 3);
    EXPECT_EQ(model.index(0, 0, source).data().toString(), "Title 1");
    EXPECT_EQ(model.index(1, 0, source).data().toString(), "Title 2 (Main)");
    EXPECT_EQ(model.index(2, 0, source).data(Model::TitleNumberRole).toInt(), 3);
    EXPECT_EQ(model.index(2, 0, source).data(Model::PathRole).toString(), "D");
    EXPECT_EQ(model.index(2, 0, source).data(Model::SecondsRole).toInt(), 180);
    EXPECT_EQ(model.index(2, 0, source).parent(), source);
    EXPECT_EQ(model.titleIndex(1, 2), model.index(1, 0, source));
    EXPECT_FALSE(model.titleIndex(1, 9).isValid());
}

TEST_F(Queues, WhatIsNoDiscCantBeExpandedOnceThatIsKnown)
{
    model.insert({"/films/Folder"});
    EXPECT_TRUE(model.canFetchMore(model.index(0)));
    QSignalSpy wanted(&model, &Model::titlesWanted);
    model.fetchMore(model.index(0));
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.at(0).at(0).toString(), "/films/Folder");
    model.setTitles("/films/Folder", PlayerDisc());
    EXPECT_FALSE(model.canFetchMore(model.index(0)));
    EXPECT_FALSE(model.hasChildren(model.index(0)));
    EXPECT_FALSE(model.index(0).data(Model::MayExpandRole).toBool());
}

TEST_F(Queues, TitlesToldAnewReplaceTheOldOnes)
{
    model.insert({"D"});
    model.setTitles("D", disc(5, 1));
    model.setTitles("D", disc(2, 1));
    EXPECT_EQ(model.rowCount(model.index(0)), 2);
    model.setTitles("D", PlayerDisc());
    EXPECT_EQ(model.rowCount(model.index(0)), 0);
}

TEST_F(Queues, TitlesOfASourceThatIsNotThereAnyMoreAreLost)
{
    model.insert({"/films/a.mkv"});
    model.setTitles("D", disc(5, 1));
    model.setTitles("/films/a.mkv", disc(5, 1));
    EXPECT_EQ(model.sourceCount(), 1);
    EXPECT_EQ(model.rowCount(model.index(0)), 0);
}

TEST_F(Queues, ScatteredRowsGoInOneStepAndTheOthersStayThemselves)
{
    model.insert({"/0.mkv", "/1.mkv", "D", "/3.mkv", "/4.mkv", "/5.mkv"});
    model.setTitles("D", disc(2, 1));
    const QPersistentModelIndex discRow = model.index(2);
    const QPersistentModelIndex title = model.index(1, 0, model.index(2));
    const QPersistentModelIndex gone = model.index(3);
    const QPersistentModelIndex last = model.index(5);
    QSignalSpy removals(&model, &QAbstractItemModel::rowsRemoved);
    model.removeSources({3, 0, 4, 3});
    EXPECT_EQ(removals.count(), 1);
    EXPECT_EQ(names(), QStringList({"1.mkv", "D:", "5.mkv"}));
    EXPECT_EQ(discRow.row(), 1);
    EXPECT_EQ(title.parent(), QModelIndex(discRow));
    EXPECT_EQ(title.data().toString(), "Title 2");
    EXPECT_FALSE(gone.isValid());
    EXPECT_EQ(last.row(), 2);
}

TEST_F(Queues, RowsThatAreNotThereAreNotRemoved)
{
    model.insert({"/0.mkv"});
    model.removeSources({-1});
    model.removeSources({1});
    model.removeSources({});
    EXPECT_EQ(model.sourceCount(), 1);
}

TEST_F(Queues, MovedRowsKeepTheirOrderAndTheirFollowers)
{
    model.insert({"/0.mkv", "/1.mkv", "/2.mkv", "/3.mkv", "/4.mkv"});
    const QPersistentModelIndex one = model.index(1);
    model.moveSources({3, 1}, 0);
    EXPECT_EQ(names(), QStringList({"1.mkv", "3.mkv", "0.mkv", "2.mkv", "4.mkv"}));
    EXPECT_EQ(one.row(), 0);
    model.moveSources({0}, 5);
    EXPECT_EQ(names().last(), "1.mkv");
    model.moveSources({0}, -1);
    EXPECT_EQ(names().last(), "3.mkv");
    // Into its own place.
    const QStringList before = names();
    model.moveSources({1, 2}, 2);
    EXPECT_EQ(names(), before);
    model.moveSources({9}, 0);
    EXPECT_EQ(names(), before);
}

TEST_F(Queues, NamesSortAsPeopleReadThem)
{
    model.insert({"/x/Part 10.mkv", "/y/part 2.mkv", "/z/alpha.mp3", "D"});
    model.sortSources(Model::SortType::ByName);
    EXPECT_EQ(names(), QStringList({"alpha.mp3", "D:", "part 2.mkv", "Part 10.mkv"}));
}

TEST_F(Queues, TypesSortByEndingAndThenByName)
{
    model.insert({"/b.mp3", "/a.mp3", "/c.avi", "/Folder", "D"});
    model.sortSources(Model::SortType::ByType);
    EXPECT_EQ(names(), QStringList({"D:", "Folder", "c.avi", "a.mp3", "b.mp3"}));
}

TEST_F(Queues, PresenceIsToldForTheRowsThatChanged)
{
    model.insert({"/0.mkv", "/1.mkv", "/2.mkv"});
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.setPresence({{"/1.mkv", false}, {"/2.mkv", true}, {"/unknown", false}});
    EXPECT_EQ(changes.count(), 1);
    EXPECT_TRUE(model.index(1).data(Model::InvalidRole).toBool());
    EXPECT_EQ(model.goneRows(), QVector<int>{1});
    model.setPresence({{"/1.mkv", false}});
    EXPECT_EQ(changes.count(), 1);
    EXPECT_TRUE(model.index(1).data(Qt::AccessibleTextRole).toString().contains("Not found"));
}

TEST_F(Queues, DraggedRowsHoldNoFilesAndFitNoOtherQueue)
{
    model.insert({"/0.mkv", "/1.mkv"});
    const std::unique_ptr<QMimeData> data(model.mimeData({model.index(1)}));
    ASSERT_TRUE(data);
    EXPECT_FALSE(data->hasUrls());
    EXPECT_EQ(model.rowsOf(data.get()), QVector<int>{1});
    Model other;
    other.insert({"/0.mkv", "/1.mkv"});
    EXPECT_TRUE(other.rowsOf(data.get()).isEmpty());
    model.removeSources({1});
    EXPECT_TRUE(model.rowsOf(data.get()).isEmpty()) << "the row is gone by now";
    QMimeData rubbish;
    rubbish.setData(Model::MimeType, "rubbish");
    EXPECT_TRUE(model.rowsOf(&rubbish).isEmpty());
}

TEST_F(Queues, TitlesAreNotDragged)
{
    model.insert({"D"});
    model.setTitles("D", disc(2, 1));
    const QModelIndex title = model.index(0, 0, model.index(0));
    EXPECT_FALSE(model.flags(title) & Qt::ItemIsDragEnabled);
    EXPECT_EQ(model.mimeData({title}), nullptr);
}

TEST_F(Queues, NamesInToolTipsAreNoMarkup)
{
    model.insert({"/<b>x</b>.mkv"});
    EXPECT_FALSE(model.index(0).data(Qt::ToolTipRole).toString().contains("<b>"));
}

TEST_F(Queues, ClearLeavesNothingBehind)
{
    model.insert({"/0.mkv", "D"});
    model.setTitles("D", disc(2, 1));
    model.clear();
    EXPECT_EQ(model.rowCount(), 0);
    model.insert({"D"});
    EXPECT_EQ(model.rowCount(model.index(0)), 0);
}
