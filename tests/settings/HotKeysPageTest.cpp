#include "FakeSettingsHost.h"
#include "TestSettings.h"

#include "settings/HotKeysPage.h"
#include "settings/KeyMapDelegate.h"
#include "settings/KeySequenceEditWidget.h"
#include "settings/NormalKeyConflictTipsDialog.h"
#include "support/Eventually.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

namespace {

void press(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyPress(widget, Qt::Key(key), modifiers);
}

void release(QWidget *widget, int key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyRelease(widget, Qt::Key(key), modifiers);
}

class HotKeysPageTest : public testing::Test {
protected:
    HotKeysPageTest()
        : m_model(*m_store, m_host)
    {
        m_model.load();
        m_page = std::make_unique<HotKeysPage>(m_model);
        m_page->resize(600, 500);
        m_page->show();
        QApplication::setActiveWindow(m_page.get());
        m_page->table()->setFocus();
    }

    KeyMapModel &keys() { return *m_model.keys(KeyMapTables::Mode::Pc); }
    int rowOf(int operation)
    {
        for (int row = 0; row < keys().rowCount(); ++row) {
            if (keys().index(row, 0).data(KeyMapModel::OperationRole).toInt() == operation)
                return row;
        }
        return -1;
    }
    int keyOf(int operation)
    {
        return keys().index(rowOf(operation), KeyMapModel::KeyColumn).data(KeyMapModel::KeyRole).toInt();
    }
    void select(int operation)
    {
        m_page->table()->setCurrentIndex(keys().index(rowOf(operation), KeyMapModel::KeyColumn));
    }
    KeySequenceEditWidget *editor() { return m_page->table()->findChild<KeySequenceEditWidget *>(); }
    KeySequenceEditWidget *open(int operation)
    {
        select(operation);
        press(m_page->table(), Qt::Key_Return);
        return editor();
    }

    TestSettings m_store;
    FakeSettingsHost m_host;
    SettingsModel m_model;
    std::unique_ptr<HotKeysPage> m_page;
};

} // namespace

TEST(KeySequenceEditWidget, TakesAKeyAtItsPressAndEndsAtItsRelease)
{
    KeySequenceEditWidget editor;
    QSignalSpy finished(&editor, &KeySequenceEditWidget::SIG_editFinished);
    EXPECT_EQ(editor.text(), QStringLiteral("None"));
    press(&editor, Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(editor.keyValue(), int(Qt::CTRL) + int(Qt::Key_K));
    EXPECT_EQ(finished.count(), 0);
    release(&editor, Qt::Key_K, Qt::ControlModifier);
    EXPECT_EQ(finished.count(), 1);
}

TEST(KeySequenceEditWidget, AModifierOrALockAloneIsNoKey)
{
    KeySequenceEditWidget editor;
    QSignalSpy finished(&editor, &KeySequenceEditWidget::SIG_editFinished);
    for (int key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_AltGr,
                    Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_ScrollLock, Qt::Key_Super_L}) {
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&editor, &event);
        }
    }
    EXPECT_EQ(editor.keyValue(), 0);
    EXPECT_FALSE(editor.isUsed());
    EXPECT_EQ(finished.count(), 0);
}

TEST(KeySequenceEditWidget, DeleteTakesTheKeyAwayEvenIfItIsBound)
{
    KeySequenceEditWidget editor;
    QSignalSpy finished(&editor, &KeySequenceEditWidget::SIG_editFinished);
    editor.setKeySequence(QKeySequence(Qt::Key_Delete));
    press(&editor, Qt::Key_Delete);
    release(&editor, Qt::Key_Delete);
    EXPECT_EQ(editor.keyValue(), 0);
    EXPECT_EQ(finished.count(), 1);
}

TEST(KeySequenceEditWidget, TheKeypadIsTheMainKeyboard)
{
    KeySequenceEditWidget editor;
    press(&editor, Qt::Key_5, Qt::KeypadModifier);
    EXPECT_EQ(editor.keyValue(), int(Qt::Key_5));
    press(&editor, Qt::Key_Return);
    EXPECT_EQ(editor.keyValue(), int(Qt::Key_Enter));
}

TEST(KeySequenceEditWidget, TabAndEscapeAreKeysToo)
{
    KeySequenceEditWidget editor;
    press(&editor, Qt::Key_Tab);
    EXPECT_EQ(editor.keyValue(), int(Qt::Key_Tab));
    press(&editor, Qt::Key_Escape);
    EXPECT_EQ(editor.keyValue(), int(Qt::Key_Escape));
}

TEST_F(HotKeysPageTest, TheEnterThatOpensTheEditorIsNotTheNewKey)
{
    ASSERT_TRUE(open(KeyOperate_Mute));
    release(editor(), Qt::Key_Return);
    ASSERT_TRUE(editor());
    EXPECT_EQ(keyOf(KeyOperate_Mute), int(Qt::Key_M));
}

TEST_F(HotKeysPageTest, APressedKeyIsTheNewOne)
{
    ASSERT_TRUE(open(KeyOperate_Mute));
    press(editor(), Qt::Key_F9);
    release(editor(), Qt::Key_F9);
    EXPECT_EQ(keyOf(KeyOperate_Mute), int(Qt::Key_F9));
    ASSERT_EVENTUALLY(!editor());
}

TEST_F(HotKeysPageTest, AConflictNamesTheOtherAndCanBeTakenBack)
{
    qRegisterMetaType<QList<QModelIndex>>("QList<QModelIndex>");
    auto *delegate = qobject_cast<KeyMapDelegate *>(m_page->table()->itemDelegate());
    QSignalSpy list(delegate, &KeyMapDelegate::SIG_KeyConflictList);
    QSignalSpy index(delegate, &KeyMapDelegate::SIG_KeyConflictIndex);
    ASSERT_TRUE(open(KeyOperate_Mute));
    press(editor(), Qt::Key_Space);
    release(editor(), Qt::Key_Space);
    ASSERT_EQ(list.count(), 1);
    ASSERT_EQ(index.count(), 1);
    EXPECT_EQ(index.first().at(2).toInt(), int(Qt::Key_Space));
    EXPECT_EQ(keyOf(KeyOperate_PlayPause), 0);
    EXPECT_TRUE(m_page->note().contains(KeyMapTables::keyOperateName(KeyOperate_PlayPause)));
    auto *tip = m_page->findChild<NormalKeyConflictTipsDialog *>();
    ASSERT_TRUE(tip);
    EXPECT_TRUE(tip->isVisible());
    EXPECT_EQ(tip->findChild<QLabel *>()->text(),
              QStringLiteral("The hotkey you just chose was previously used for another action. That one has "
                             "been rendered useless."));
    const QRect place = list.first().at(1).toRect();
    EXPECT_EQ(tip->x(), place.x() - 21);
    m_page->undo();
    EXPECT_EQ(keyOf(KeyOperate_PlayPause), int(Qt::Key_Space));
    EXPECT_FALSE(tip->isVisible());
    EXPECT_TRUE(m_page->note().isEmpty());
}

TEST_F(HotKeysPageTest, LeavingTheEditorChangesNothing)
{
    ASSERT_TRUE(open(KeyOperate_Mute));
    select(KeyOperate_Stop);
    EXPECT_EQ(keyOf(KeyOperate_Mute), int(Qt::Key_M));
    m_page->table()->setFocus();
    ASSERT_EVENTUALLY(!editor());
    EXPECT_EQ(keyOf(KeyOperate_Mute), int(Qt::Key_M));
}

TEST_F(HotKeysPageTest, DeleteOnARowTakesItsKeyAway)
{
    select(KeyOperate_Mute);
    press(m_page->table(), Qt::Key_Delete);
    EXPECT_EQ(keyOf(KeyOperate_Mute), 0);
    m_page->resetCurrent();
    EXPECT_EQ(keyOf(KeyOperate_Mute), int(Qt::Key_M));
}

TEST_F(HotKeysPageTest, ResetAllGivesEveryKeyBack)
{
    select(KeyOperate_Mute);
    press(m_page->table(), Qt::Key_Delete);
    select(KeyOperate_Stop);
    press(m_page->table(), Qt::Key_Delete);
    m_page->resetAll();
    EXPECT_EQ(keyOf(KeyOperate_Mute), int(Qt::Key_M));
    EXPECT_EQ(keyOf(KeyOperate_Stop), int(Qt::CTRL) + int(Qt::Key_S));
}

TEST_F(HotKeysPageTest, TheOtherFaceHasATableOfItsOwn)
{
    m_page->showMode(KeyMapTables::Mode::Tv);
    EXPECT_EQ(m_page->table()->model(), m_model.keys(KeyMapTables::Mode::Tv));
    EXPECT_EQ(m_page->table()->model()->rowCount(),
              KeyMapTables::settingsOrder().size()
                  - KeyMapTables::removedKeys(KeyMapTables::Mode::Tv).size());
}
