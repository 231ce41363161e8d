#include "library/ViewTypeManager.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace {

TEST(ViewTypeManager, EveryPageHasItsRoleAndItsWayBack)
{
    struct Row {
        int role;
        int back;
    };
    const Row rows[]{{1, 0},  {1, 1},  {2, 0},  {2, 3},  {2, 4},  {3, 0},  {3, 6},  {3, 7},
                     {3, 8},  {4, 0},  {5, 0},  {5, 11}, {6, 0},  {6, 13}, {6, 14}, {6, 13},
                     {6, 16}, {6, 13}, {6, 18}, {6, 13}, {6, 20}, {6, 13}, {6, 13}, {0, 0}};
    for (int page = 1; page <= 24; ++page) {
        EXPECT_EQ(ViewTypeManager::role(page), rows[page - 1].role) << page;
        EXPECT_EQ(ViewTypeManager::backPage(page), rows[page - 1].back) << page;
    }
    EXPECT_EQ(ViewTypeManager::role(0), 0);
    EXPECT_EQ(ViewTypeManager::role(25), 0);
}

TEST(ViewTypeManager, PicturesAreDroppedOnlyBetweenTopLevelPages)
{
    ViewTypeManager pages;
    int drops = 0;
    pages.setPicturesDropper([&] { ++drops; });
    pages.setPage(MediaPage::Movies);
    EXPECT_EQ(drops, 0) << "no page was on show";
    pages.setPage(MediaPage::MovieDetail);
    pages.setPage(MediaPage::Movies);
    EXPECT_EQ(drops, 0) << "between a list and its detail";
    pages.setPage(MediaPage::TvShows);
    EXPECT_EQ(drops, 1);
    pages.setPage(MediaPage::ExplorerFolder);
    EXPECT_EQ(drops, 2);
}

TEST(ViewTypeManager, BackRunsTheTableAndPopsFolders)
{
    ViewTypeManager pages;
    QSignalSpy changed(&pages, &ViewTypeManager::sig_mediaPageTypeChanged);
    pages.setPage(MediaPage::EpisodeDetail);
    while (pages.back()) {
    }
    EXPECT_EQ(pages.page(), MediaPage::TvShows);
    EXPECT_EQ(changed.size(), 4);

    pages.setPage(MediaPage::ExplorerFolder);
    QSignalSpy counts(&pages, &ViewTypeManager::sig_pathStackChanged);
    QSignalSpy paths(&pages, &ViewTypeManager::sig_pathChanged);
    pages.pushFolder("/a");
    pages.pushFolder("/a/b");
    EXPECT_TRUE(pages.back());
    EXPECT_EQ(pages.path(MediaPage::ExplorerFolder), "/a");
    EXPECT_TRUE(pages.back());
    EXPECT_FALSE(pages.back());
    QList<int> told;
    for (const auto &arguments : counts)
        told.append(arguments[0].toInt());
    EXPECT_EQ(told, (QList<int>{1, 2, 1, 0}));
    EXPECT_EQ(paths.last()[0].toString(), "");
}

TEST(ViewTypeManager, NumbersThatAreNoPageChangeNothing)
{
    ViewTypeManager pages;
    QSignalSpy changed(&pages, &ViewTypeManager::sig_mediaPageTypeChanged);
    pages.setPage(0);
    pages.setPage(25);
    EXPECT_EQ(changed.size(), 0);
    EXPECT_EQ(pages.page(), MediaPage::NoPage);
    EXPECT_FALSE(pages.back());
}

TEST(ViewTypeManager, VideosHaveNoNameOfTheirOwnInTheRecords)
{
    EXPECT_EQ(ViewTypeManager::viewName(0), "View_none");
    EXPECT_EQ(ViewTypeManager::viewName(4), "VIEW_tvshow");
    EXPECT_EQ(ViewTypeManager::viewName(5), "VIEW_fileExplorer");
    EXPECT_EQ(ViewTypeManager::viewName(8), "VIEW_computer");
    EXPECT_EQ(ViewTypeManager::viewName(99), "VIEW_fileExplorer");
}

} // namespace
