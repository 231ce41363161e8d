#include "queue/NormalPlaylistView.h"

#include "TestSettings.h"

#include "queue/NormalPlaylistIconDelegate.h"
#include "queue/NormalPlaylistListDelegate.h"
#include "queue/QueueHead.h"
#include "queue/QueueListView.h"

#include "core/SettingsKeys.h"
#include "transport/TransportButton.h"
#include "ui/FocusRing.h"
#include "ui/OverlayHost.h"

#include "support/Eventually.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <set>

namespace {

PlayerDisc discOfThree()
{
    PlayerDisc disc;
    disc.isValid = true;
    disc.mainTitle = 1;
    for (int number = 1; number <= 3; ++number)
        disc.titles.append({number, number * 60000, 1, {}});
    return disc;
}

class Panels : public testing::Test {
protected:
    Panels()
    {
        NormalPlaylistView::Services services;
        services.queue.exists = [](const QString &path) { return !path.contains("gone"); };
        services.queue.titles = [](const QString &, int) { return discOfThree(); };
        services.chooseFiles = [this](QWidget *, const QString &folder) {
            askedFolder = folder;
            return chosenFiles;
        };
        services.chooseFolder = [this](QWidget *, const QString &folder) {
            askedFolder = folder;
            return chosenFolder;
        };
        services.showInFolder = [this](const QString &path) { shownFolder = path; };
        panel = std::make_unique<NormalPlaylistView>(*settings, services);
        panel->resize(372, 600);
    }
    void open()
    {
        panel->open();
        ASSERT_EVENTUALLY(panel->cardRect().left() == 0);
    }
    void add(const QStringList &paths)
    {
        const int before = panel->queue()->model()->sourceCount();
        panel->addSources(paths);
        ASSERT_EVENTUALLY(panel->queue()->model()->sourceCount() == before + paths.size());
    }
    [[nodiscard]] QModelIndex row(int number) const { return panel->queue()->model()->index(number); }
    [[nodiscard]] QPoint at(int number) const { return panel->list()->visualRect(row(number)).center(); }
    void click(int number, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(panel->list()->viewport(), Qt::LeftButton, modifiers, at(number));
    }
    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (int i = 0; i < panel->queue()->model()->sourceCount(); ++i)
            result << row(i).data().toString();
        return result;
    }
    bool key(int code, const QString &text = {}, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, code, modifiers, text);
        return panel->handleKey(&event);
    }
    // The actions of a menu by their texts; a line is an empty text.
    static QStringList texts(const QMenu *menu)
    {
        QStringList result;
        for (const QAction *action : menu->actions())
            result << action->text();
        return result;
    }
    static QAction *entry(const QMenu *menu, const QString &text)
    {
        for (QAction *action : menu->actions()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    void drop(QWidget *on, const QMimeData *data, const QPoint &at)
    {
        QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(on, &enter);
        QDragMoveEvent move(at, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(on, &move);
        QDropEvent dropped(at, Qt::CopyAction | Qt::MoveAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(on, &dropped);
        wasTaken = enter.isAccepted() && dropped.isAccepted();
    }

    TestSettings settings;
    QStringList chosenFiles;
    QString chosenFolder;
    QString askedFolder;
    QString shownFolder;
    bool wasTaken{false};
    std::unique_ptr<NormalPlaylistView> panel;
};

} // namespace

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

// ---- keyboard

TEST_F(Panels, KeysBelongToTheWindowUntilThePanelWasPressed)
{
    add({"/a.mkv", "/b.mkv"});
    EXPECT_FALSE(key(Qt::Key_Down));
    open();
    EXPECT_FALSE(key(Qt::Key_Down));
    click(0);
    EXPECT_TRUE(key(Qt::Key_Down));
    EXPECT_EQ(panel->selectNode().row(), 1);
    EXPECT_TRUE(key(Qt::Key_Escape));
    EXPECT_FALSE(key(Qt::Key_Up));
    EXPECT_TRUE(panel->isOpen());
}

TEST_F(Panels, KeysOfTheWindowStayWithTheWindow)
{
    add({"/a.mkv"});
    open();
    click(0);
    EXPECT_FALSE(key(Qt::Key_Space, " ")) << "it pauses";
    EXPECT_FALSE(key(Qt::Key_F11));
    EXPECT_FALSE(key(Qt::Key_O, "\x0f", Qt::ControlModifier));
    EXPECT_FALSE(key(Qt::Key_Return, "\r", Qt::AltModifier));
    EXPECT_FALSE(key(Qt::Key_Right, {}, Qt::ControlModifier));
    EXPECT_EQ(panel->queue()->count(), 1);
}

TEST_F(Panels, EnterPlaysAndDeleteRemoves)
{
    add({"/a.mkv", "/b.mkv", "/c.mkv"});
    open();
    click(1);
    QSignalSpy plays(panel.get(), &NormalPlaylistView::sig_playSource);
    EXPECT_TRUE(key(Qt::Key_Return, "\r"));
    ASSERT_EQ(plays.count(), 1);
    EXPECT_EQ(plays.at(0).at(0).toString(), "/b.mkv");
    EXPECT_TRUE(key(Qt::Key_Delete));
    EXPECT_EQ(names(), QStringList({"a.mkv", "c.mkv"}));
    EXPECT_TRUE(key(Qt::Key_Delete)) << "the row that took its place is the next one";
    EXPECT_EQ(names(), QStringList({"a.mkv"}));
    EXPECT_TRUE(key(Qt::Key_Delete));
    EXPECT_TRUE(key(Qt::Key_Delete));
    EXPECT_EQ(panel->queue()->count(), 0);
}

TEST_F(Panels, CtrlASelectsAllAndDeleteTakesThem)
{
    add({"/a.mkv", "D", "/c.mkv"});
    open();
    click(0);
    EXPECT_TRUE(key(Qt::Key_A, "\x01", Qt::ControlModifier));
    EXPECT_TRUE(key(Qt::Key_Delete));
    EXPECT_EQ(panel->queue()->count(), 0);
}

TEST_F(Panels, TypingGoesToTheName)
{
    add({"/alpha.mkv", "/beta one.mkv", "/beta two.mkv"});
    open();
    click(0);
    for (const QChar letter : QStringLiteral("beta t")) {
        EXPECT_TRUE(key(letter == ' ' ? int(Qt::Key_Space) : int(letter.toUpper().unicode()), letter))
            << letter.toLatin1();
    }
    EXPECT_EQ(panel->selectNode().row(), 2);
}

TEST_F(Panels, ArrowsFoldADisc)
{
    add({"D"});
    ASSERT_EVENTUALLY(panel->queue()->model()->titleCount(0) == 3);
    open();
    click(0);
    EXPECT_TRUE(key(Qt::Key_Right));
    EXPECT_TRUE(panel->list()->isExpanded(row(0)));
    EXPECT_TRUE(key(Qt::Key_Down));
    EXPECT_TRUE(panel->selectNode().parent().isValid());
    EXPECT_TRUE(key(Qt::Key_Left));
    EXPECT_EQ(panel->selectNode(), row(0));
    EXPECT_TRUE(key(Qt::Key_Left));
    EXPECT_FALSE(panel->list()->isExpanded(row(0)));
}

TEST_F(Panels, TabShowsTheCursorAndReachesEveryButton)
{
    add({"/a.mkv"});
    open();
    click(0);
    EXPECT_FALSE(FocusRing::isOn(panel->list()));
    std::set<QWidget *> seen;
    for (int i = 0; i < 8; ++i) {
        EXPECT_TRUE(key(Qt::Key_Tab, "\t"));
        seen.insert(panel->window()->focusWidget());
        EXPECT_TRUE(FocusRing::isOn(panel->window()->focusWidget()));
    }
    QueueHead *head = panel->head();
    for (QWidget *part :
         {static_cast<QWidget *>(head->lookButton()), static_cast<QWidget *>(head->addButton()),
          static_cast<QWidget *>(head->optionButton()), static_cast<QWidget *>(head->closeButton()),
          static_cast<QWidget *>(panel->list())})
        EXPECT_EQ(seen.count(part), 1U) << qPrintable(part->accessibleName());
    head->closeButton()->setFocus();
    EXPECT_TRUE(key(Qt::Key_Return, "\r"));
    EXPECT_FALSE(panel->isOpen());
}

TEST_F(Panels, EveryControlHasANameToBeReadAloud)
{
    for (const TransportButton *button : panel->findChildren<TransportButton *>()) {
        EXPECT_FALSE(button->accessibleName().isEmpty());
        EXPECT_FALSE(button->toolTip().isEmpty());
    }
    EXPECT_FALSE(panel->list()->accessibleName().isEmpty());
    EXPECT_FALSE(panel->accessibleName().isEmpty());
}

// ---- menus

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

// ---- drops

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
