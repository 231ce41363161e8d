#include "keys/KeyMapTables.h"

#include <gtest/gtest.h>

namespace {

using namespace KeyMapTables;

TEST(KeyMapTables, PcDefaultsLackWhatPcModeDoesNotOffer)
{
    const KeyMap map = defaultPcKeyMap();
    for (int type : {4, 6, 24, 27, 36})
        EXPECT_FALSE(map.contains(type)) << type;
    EXPECT_EQ(map.size(), 41 - 5);
    EXPECT_EQ(map.value(KeyOperate_FullScreen), Qt::Key_F11);
    EXPECT_EQ(map.value(KeyOperate_OpenFile), Qt::CTRL + Qt::Key_O);
    EXPECT_EQ(map.value(KeyOperate_ForwardStep), Qt::CTRL + Qt::Key_Right);
    EXPECT_EQ(map.value(KeyOperate_SendFeedback), int(Qt::Key_F12));
}

TEST(KeyMapTables, TvDefaultsLackWhatTvModeDoesNotOffer)
{
    const KeyMap map = defaultTvKeyMap();
    for (int type : {0, 1, 2, 3, 7, 8, 24, 36})
        EXPECT_FALSE(map.contains(type)) << type;
    EXPECT_EQ(map.size(), 41 - 8);
    EXPECT_EQ(map.value(KeyOperate_Return), int(Qt::Key_Backspace));
    EXPECT_EQ(map.value(KeyOperate_PlaybackMenu), Qt::CTRL + Qt::Key_M);
    EXPECT_EQ(map.value(KeyOperate_Eject), Qt::CTRL + Qt::Key_E);
}

TEST(KeyMapTables, FullTablesHoldWhatIsRemovedLater)
{
    const KeyMap pc = fullKeyMap(Mode::Pc);
    EXPECT_EQ(pc.value(24), int(Qt::Key_F4));
    EXPECT_EQ(pc.value(27), Qt::CTRL + Qt::Key_M);
    EXPECT_EQ(pc.value(36), int(Qt::Key_F3));
    const KeyMap tv = fullKeyMap(Mode::Tv);
    EXPECT_EQ(tv.value(1), int(Qt::Key_F5));
    EXPECT_EQ(tv.value(2), int(Qt::Key_F1));
    EXPECT_EQ(tv.value(24), int(Qt::Key_F4));
}

TEST(KeyMapTables, AnEmptyStoreGivesTheDefaults)
{
    EXPECT_EQ(completed({}, Mode::Pc), defaultPcKeyMap());
    EXPECT_EQ(completed({}, Mode::Tv), defaultTvKeyMap());
}

TEST(KeyMapTables, AMapOfAnEarlierVersionGainsOperation37EvenWhenItsKeyIsTaken)
{
    const KeyMap stored{{KeyOperate_Mute, Qt::CTRL + Qt::Key_Right}};
    const KeyMap map = completed(stored, Mode::Pc);
    EXPECT_EQ(map.value(KeyOperate_ForwardStep), Qt::CTRL + Qt::Key_Right);
    EXPECT_EQ(map.value(KeyOperate_Mute), Qt::CTRL + Qt::Key_Right);
    EXPECT_FALSE(map.contains(KeyOperate_Stop));
    EXPECT_EQ(map.size(), 1 + mustHavePcKeys().size());
    EXPECT_EQ(completed(stored, Mode::Tv).size(), 1 + mustHaveTvKeys().size());
}

TEST(KeyMapTables, OperationsThatNobodyKnowsTakeNoKey)
{
    const KeyMap map =
        completed({{-3, Qt::Key_Space}, {KeyOperate_PlayPause, Qt::Key_Space}, {41, Qt::Key_X}}, Mode::Pc);
    EXPECT_EQ(operationOf(map, Qt::Key_Space), int(KeyOperate_PlayPause));
    EXPECT_EQ(operationOf(map, Qt::Key_X), -1);
}

TEST(KeyMapTables, AnUnboundMustHaveOperationStaysUnbound)
{
    EXPECT_EQ(completed({{KeyOperate_ForwardStep, 0}}, Mode::Pc).value(KeyOperate_ForwardStep), 0);
}

TEST(KeyMapTables, ReturnIsEnterAndTheKeypadIsTheMainBlock)
{
    EXPECT_EQ(normalizedKey(Qt::Key_Return), int(Qt::Key_Enter));
    EXPECT_EQ(normalizedKey(Qt::Key_Enter + int(Qt::KeypadModifier)), int(Qt::Key_Enter));
    EXPECT_EQ(normalizedKey(Qt::CTRL + Qt::Key_Return), Qt::CTRL + Qt::Key_Enter);
    EXPECT_EQ(normalizedKey(Qt::Key_5 + int(Qt::KeypadModifier)), int(Qt::Key_5));
}

TEST(KeyMapTables, OfTwoOperationsWithOneKeyTheLowerFires)
{
    const KeyMap map{{KeyOperate_Stop, Qt::Key_X}, {KeyOperate_Mute, Qt::Key_X}};
    EXPECT_EQ(operationOf(map, Qt::Key_X), int(KeyOperate_Mute));
    EXPECT_EQ(operationOf(map, Qt::Key_Y), -1);
}

TEST(KeyMapTables, NamesAreTheWordsOfTheSettingsPage)
{
    EXPECT_EQ(keyOperateName(0), "Open file");
    EXPECT_EQ(keyOperateName(22), "Filp vertically");
    EXPECT_EQ(keyOperateName(23), "Filp horizontally");
    EXPECT_EQ(keyOperateName(20), QString::fromUtf8("Rotate 90\u00B0 CW"));
    EXPECT_EQ(keyOperateName(21), QString::fromUtf8("Rotate 90\u00B0 CCW"));
    EXPECT_EQ(keyOperateName(37), "Forward 10. Sec");
    EXPECT_EQ(keyOperateName(36), QString());
    EXPECT_EQ(keyOperateName(41), QString());
}

TEST(KeyMapTables, SettingsOrderHoldsEachOperationOnce)
{
    QList<int> order = settingsOrder();
    EXPECT_EQ(order.mid(18, 4), QList<int>({37, 38, 40, 39}));
    std::sort(order.begin(), order.end());
    for (int type = 0; type <= 40; ++type)
        EXPECT_EQ(order.value(type), type);
}

TEST(KeyMapTables, TextOfAKey)
{
    const KeyMap map{{KeyOperate_Stop, Qt::CTRL + Qt::Key_S}, {KeyOperate_Mute, 0}};
    EXPECT_EQ(keyText(map, KeyOperate_Stop), "Ctrl+S");
    EXPECT_EQ(keyText(map, KeyOperate_Mute), "None");
    EXPECT_EQ(keyText(map, KeyOperate_PlayPause), QString());
    EXPECT_TRUE(keySequence(map, KeyOperate_PlayPause).isEmpty());
}

} // namespace
