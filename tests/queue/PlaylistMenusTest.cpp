// The menus of the panel of the playlist, and what is chosen in them.
#include "PlaylistPanel.h"

#include "core/SettingsKeys.h"

#include <QFile>

TEST_F(Panels, TheContextMenuHasItsEntriesAndDimsWhatCantBeDone)
{
    QMenu *menu = panel->menus()->buildContext({});
    EXPECT_EQ(texts(menu), QStringList({"AddFile...", "Add Folder...", "", "Remove", "Remove Invalid",
                                        "Remove All", "", "Open Containing Folder"}));
    EXPECT_TRUE(entry(menu, "AddFile...")->isEnabled());
    for (const char *text : {"Remove", "Remove Invalid", "Remove All", "Open Containing Folder"})
        EXPECT_FALSE(entry(menu, text)->isEnabled()) << text;
    QueueMenus::State full;
    full.hasSources = full.hasSelection = full.hasFolder = true;
    menu = panel->menus()->buildContext(full);
    for (const QAction *action : menu->actions())
        EXPECT_TRUE(action->isSeparator() || action->isEnabled());
}

TEST_F(Panels, TheOptionMenuChecksTheFirstOfEachGroupWithoutASetting)
{
    QueueMenus::State state;
    state.sortType = panel->queue()->sortType();
    state.loopType = panel->queue()->loopType();
    QMenu *menu = panel->menus()->buildOption(state);
    EXPECT_EQ(texts(menu), QStringList({"Remove All", "", "Sort by Name", "Sort by Type", "", "Once",
                                        "Sequence", "Shuffle", "Repeat One", "Repeat All"}));
    QStringList checked;
    for (const QAction *action : menu->actions()) {
        if (action->isChecked())
            checked << action->text();
    }
    EXPECT_EQ(checked, QStringList({"Sort by Name", "Once"}));
}

TEST_F(Panels, ChoicesOfTheOptionMenuAreStoredAndCarriedOut)
{
    add({"/b.mkv", "/c.avi", "/a.mkv"});
    const char *loops[] = {"Once", "Sequence", "Shuffle", "Repeat One", "Repeat All"};
    for (int type = 0; type < 5; ++type) {
        entry(panel->menus()->buildOption({}), loops[type])->trigger();
        EXPECT_EQ(settings->value(SettingsKeys::PC_PlaylistLoopType).toInt(), type);
    }
    entry(panel->menus()->buildOption({}), "Sort by Name")->trigger();
    EXPECT_EQ(names(), QStringList({"a.mkv", "b.mkv", "c.avi"}));
    EXPECT_EQ(settings->value(SettingsKeys::PC_PlaylistSortType).toInt(), 0);
    entry(panel->menus()->buildOption({}), "Sort by Type")->trigger();
    EXPECT_EQ(names(), QStringList({"c.avi", "a.mkv", "b.mkv"}));
    EXPECT_EQ(settings->value(SettingsKeys::PC_PlaylistSortType).toInt(), 1);
    QueueMenus::State state;
    state.hasSources = true;
    entry(panel->menus()->buildOption(state), "Remove All")->trigger();
    EXPECT_EQ(panel->queue()->count(), 0);
}

TEST_F(Panels, RemoveAndRemoveInvalidByTheMenu)
{
    add({"/a.mkv", "/gone.mkv", "/c.mkv"});
    open();
    click(0);
    QueueMenus::State state;
    state.hasSources = state.hasSelection = true;
    entry(panel->menus()->buildContext(state), "Remove")->trigger();
    EXPECT_EQ(names(), QStringList({"gone.mkv", "c.mkv"}));
    entry(panel->menus()->buildContext(state), "Remove Invalid")->trigger();
    ASSERT_EVENTUALLY(panel->queue()->count() == 1);
    EXPECT_EQ(names(), QStringList({"c.mkv"}));
}

TEST_F(Panels, TheContainingFolderIsThatOfTheSelectedRow)
{
    add({"smb:/films/b.mkv", "D"});
    open();
    click(0);
    QueueMenus::State state;
    state.hasFolder = true;
    entry(panel->menus()->buildContext(state), "Open Containing Folder")->trigger();
    EXPECT_EQ(shownFolder, "/films/b.mkv");
    shownFolder.clear();
    click(1);
    entry(panel->menus()->buildContext(state), "Open Containing Folder")->trigger();
    EXPECT_TRUE(shownFolder.isEmpty()) << "a drive lies in no folder";
}

TEST_F(Panels, ChosenFilesAreAddedAndTheirFolderIsRemembered)
{
    settings->setValue(SettingsKeys::PC_AddLastFolder, "/before");
    chosenFiles = QStringList({"/films/a.mkv", "/films/b.mkv"});
    entry(panel->menus()->buildAdd(), "AddFile...")->trigger();
    EXPECT_EQ(askedFolder, "/before");
    EXPECT_EQ(panel->queue()->count(), 2);
    EXPECT_EQ(settings->value(SettingsKeys::PC_AddLastFolder).toString(), "/films");
    chosenFiles.clear();
    entry(panel->menus()->buildAdd(), "AddFile...")->trigger();
    EXPECT_EQ(panel->queue()->count(), 2);
    EXPECT_EQ(settings->value(SettingsKeys::PC_AddLastFolder).toString(), "/films");
}

TEST_F(Panels, AChosenFolderGivesWhatCanBePlayedInIt)
{
    QTemporaryDir folder;
    for (const char *name : {"Part 10.mkv", "Part 2.mkv", "notes.txt"})
        QFile(folder.filePath(name)).open(QIODevice::WriteOnly);
    chosenFolder = folder.path();
    entry(panel->menus()->buildAdd(), "Add Folder...")->trigger();
    ASSERT_EVENTUALLY(panel->queue()->model()->sourceCount() == 2);
    EXPECT_EQ(names(), QStringList({"Part 2.mkv", "Part 10.mkv"}));
}
