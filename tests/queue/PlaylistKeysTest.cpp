// The panel of the playlist by the keyboard.
#include "PlaylistPanel.h"

#include "queue/QueueHead.h"

#include "transport/TransportButton.h"
#include "ui/FocusRing.h"

#include <QSignalSpy>

#include <set>

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
