#include "settings/KeyMapModel.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using Mode = KeyMapTables::Mode;

namespace {

int rowOf(const KeyMapModel &model, int operation)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.index(row, 0).data(KeyMapModel::OperationRole).toInt() == operation)
            return row;
    }
    return -1;
}

bool setKey(KeyMapModel &model, int operation, int key)
{
    return model.setData(model.index(rowOf(model, operation), KeyMapModel::KeyColumn), key,
                         KeyMapModel::KeyRole);
}

int keyOf(const KeyMapModel &model, int operation)
{
    return model.index(rowOf(model, operation), KeyMapModel::KeyColumn).data(KeyMapModel::KeyRole).toInt();
}

} // namespace

TEST(KeyMapModel, KeepsTheRulesOfModels)
{
    KeyMapModel model(Mode::Pc);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    EXPECT_TRUE(setKey(model, KeyOperate_Mute, Qt::Key_F9));
    model.setDefaults();
    model.load({});
    model.retranslate();
    EXPECT_FALSE(model.setData({}, 1, KeyMapModel::KeyRole));
    EXPECT_FALSE(model.setData(model.index(0, 0), 1, KeyMapModel::KeyRole));
    EXPECT_FALSE(model.setData(model.index(0, 1), QStringLiteral("x"), KeyMapModel::KeyRole));
}

TEST(KeyMapModel, ShowsTheSettingsOrderLessTheRemovedOperations)
{
    for (const Mode mode : {Mode::Pc, Mode::Tv}) {
        const KeyMapModel model(mode);
        QList<int> shown;
        for (int row = 0; row < model.rowCount(); ++row)
            shown << model.index(row, 0).data(KeyMapModel::OperationRole).toInt();
        QList<int> wanted = KeyMapTables::settingsOrder();
        for (int removed : KeyMapTables::removedKeys(mode))
            wanted.removeAll(removed);
        EXPECT_EQ(shown, wanted);
    }
}

TEST(KeyMapModel, AKeyIsTakenFromTheOthersWithTheTextNone)
{
    KeyMapModel model(Mode::Pc);
    QSignalSpy taken(&model, &KeyMapModel::keysTaken);
    EXPECT_TRUE(setKey(model, KeyOperate_Mute, Qt::Key_Space));
    EXPECT_EQ(keyOf(model, KeyOperate_Mute), int(Qt::Key_Space));
    EXPECT_EQ(keyOf(model, KeyOperate_PlayPause), 0);
    EXPECT_EQ(model.index(rowOf(model, KeyOperate_PlayPause), KeyMapModel::KeyColumn).data().toString(),
              QStringLiteral("None"));
    ASSERT_EQ(taken.count(), 1);
    EXPECT_EQ(taken.first().at(1).value<QList<int>>(), QList<int>{KeyOperate_PlayPause});
}

TEST(KeyMapModel, TakingCanBeTakenBack)
{
    KeyMapModel model(Mode::Pc);
    EXPECT_FALSE(model.canUndo());
    EXPECT_TRUE(setKey(model, KeyOperate_Mute, Qt::Key_Space));
    EXPECT_TRUE(model.canUndo());
    model.undo();
    EXPECT_EQ(keyOf(model, KeyOperate_PlayPause), int(Qt::Key_Space));
    EXPECT_EQ(keyOf(model, KeyOperate_Mute), int(Qt::Key_M));
    EXPECT_FALSE(model.canUndo());
}

TEST(KeyMapModel, NoKeyConflictsWithNothing)
{
    KeyMapModel model(Mode::Pc);
    QSignalSpy taken(&model, &KeyMapModel::keysTaken);
    EXPECT_TRUE(setKey(model, KeyOperate_Mute, 0));
    EXPECT_TRUE(setKey(model, KeyOperate_Stop, 0));
    EXPECT_EQ(taken.count(), 0);
    EXPECT_EQ(keyOf(model, KeyOperate_Mute), 0);
}

TEST(KeyMapModel, TheKeypadsEnterIsReturn)
{
    KeyMapModel model(Mode::Pc);
    EXPECT_EQ(keyOf(model, KeyOperate_Accept), int(Qt::Key_Enter));
    EXPECT_TRUE(setKey(model, KeyOperate_Mute, Qt::Key_Return + int(Qt::KeypadModifier)));
    EXPECT_EQ(keyOf(model, KeyOperate_Accept), 0);
}

TEST(KeyMapModel, ResetGivesTheDefaultBackAndTakesItFromOthers)
{
    KeyMapModel model(Mode::Pc);
    EXPECT_TRUE(setKey(model, KeyOperate_Mute, Qt::Key_F9));
    EXPECT_TRUE(setKey(model, KeyOperate_Stop, Qt::Key_M));
    EXPECT_FALSE(model.isDefault(rowOf(model, KeyOperate_Mute)));
    model.reset(rowOf(model, KeyOperate_Mute));
    EXPECT_EQ(keyOf(model, KeyOperate_Mute), int(Qt::Key_M));
    EXPECT_EQ(keyOf(model, KeyOperate_Stop), 0);
    model.reset(-1);
    model.reset(1000);
    model.setDefaults();
    EXPECT_EQ(keyOf(model, KeyOperate_Stop), int(Qt::CTRL) + int(Qt::Key_S));
}

TEST(KeyMapModel, AnOlderMapGetsWhatEveryMapMustHave)
{
    KeyMapModel model(Mode::Pc);
    model.load({{KeyOperate_Mute, Qt::Key_F9}});
    EXPECT_EQ(keyOf(model, KeyOperate_ForwardStep), int(Qt::CTRL) + int(Qt::Key_Right));
    EXPECT_EQ(keyOf(model, KeyOperate_Mute), int(Qt::Key_F9));
    EXPECT_EQ(keyOf(model, KeyOperate_Stop), 0);
}

TEST(KeyMapModel, TheStoredMapLosesNoOperation)
{
    KeyMapModel model(Mode::Pc);
    for (int operation : KeyMapTables::mustHavePcKeys())
        EXPECT_TRUE(setKey(model, operation, 0));
    const KeyMap map = model.map();
    EXPECT_EQ(map.size(), model.rowCount());
    for (int operation : KeyMapTables::mustHavePcKeys())
        EXPECT_TRUE(map.contains(operation)) << operation;
}

TEST(KeyMapModel, RubbishShowsAsNoKey)
{
    KeyMapModel model(Mode::Pc);
    model.load({{-4, 5},
                {999, 7},
                {KeyOperate_Mute, -1},
                {KeyOperate_Stop, Qt::Key_Control},
                {KeyOperate_About, int(Qt::CTRL)},
                {KeyOperate_Settings, Qt::Key_unknown}});
    for (int operation : {KeyOperate_Mute, KeyOperate_Stop, KeyOperate_About, KeyOperate_Settings})
        EXPECT_EQ(keyOf(model, operation), 0) << operation;
    EXPECT_FALSE(model.map().contains(999));
}

TEST(KeyMapModel, TwoStoredOperationsWithOneKeyStayAsTheyAre)
{
    KeyMapModel model(Mode::Pc);
    model.load({{KeyOperate_Mute, Qt::Key_F9}, {KeyOperate_Stop, Qt::Key_F9}});
    EXPECT_EQ(keyOf(model, KeyOperate_Mute), int(Qt::Key_F9));
    EXPECT_EQ(keyOf(model, KeyOperate_Stop), int(Qt::Key_F9));
    EXPECT_TRUE(setKey(model, KeyOperate_About, Qt::Key_F9));
    EXPECT_EQ(keyOf(model, KeyOperate_Mute), 0);
    EXPECT_EQ(keyOf(model, KeyOperate_Stop), 0);
}

TEST(KeyMapModel, AKeyThatTheRowHasAlreadyIsTakenFromTheOthersAsWell)
{
    KeyMapModel model(Mode::Pc);
    model.load({{KeyOperate_Mute, Qt::Key_F9}, {KeyOperate_Stop, Qt::Key_F9}});
    QSignalSpy taken(&model, &KeyMapModel::keysTaken);
    EXPECT_TRUE(setKey(model, KeyOperate_Mute, Qt::Key_F9));
    EXPECT_EQ(keyOf(model, KeyOperate_Mute), int(Qt::Key_F9));
    EXPECT_EQ(keyOf(model, KeyOperate_Stop), 0);
    ASSERT_EQ(taken.count(), 1);
    EXPECT_EQ(taken.first().at(1).value<QList<int>>(), QList<int>{KeyOperate_Stop});
    model.undo();
    EXPECT_EQ(keyOf(model, KeyOperate_Stop), int(Qt::Key_F9));
}

TEST(KeyMapModel, AModifierOrALockAloneIsNoKeyOfAnOperation)
{
    for (const int key : {Qt::Key_AltGr, Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_ScrollLock,
                          Qt::Key_Super_L, Qt::Key_Shift}) {
        KeyMapModel model(Mode::Pc);
        model.load({{KeyOperate_Mute, key}});
        EXPECT_EQ(keyOf(model, KeyOperate_Mute), 0) << key;
        EXPECT_TRUE(setKey(model, KeyOperate_Stop, key));
        EXPECT_EQ(keyOf(model, KeyOperate_Stop), 0) << key;
    }
}
