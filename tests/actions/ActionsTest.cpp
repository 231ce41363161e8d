// Every row of the menus, by its entry and by its key, and every operation that has a key alone.
#include "ActionProofs.h"

#include "discs/TestDiscs.h"
#include "support/Eventually.h"

#include "keys/KeyMapTables.h"
#include "menus/MenuRows.h"
#include "pc/NormalMainWindow.h"
#include "platform/DriveLetters.h"
#include "player/QPlayer.h"

#include <set>

namespace {

class Actions : public testing::Test {
protected:
    // Brings things to how they stand before; false, with a failure, where they can't be had.
    bool begin(const ActionProof &proof)
    {
        m_rig.closeDialogs();
        EXPECT_TRUE(m_rig.play(proof.clip)) << proof.clip;
        if (proof.prepare)
            proof.prepare(m_rig);
        // An action that does nothing must not pass.
        const bool isOther = m_rig.leaves(proof.read, proof.wanted);
        EXPECT_TRUE(isOther) << "it reads " << proof.wanted.toStdString() << " before";
        m_rig.answer(proof.answer);
        return isOther;
    }

    void check(const ActionProof &proof)
    {
        EXPECT_TRUE(m_rig.reaches(proof.read, proof.wanted))
            << proof.read(m_rig).toStdString() << " instead of " << proof.wanted.toStdString();
        EXPECT_TRUE(m_rig.isAnswered()) << "no window has asked";
        m_rig.answer(nullptr);
    }

    ActionRig m_rig;
};

const MenuRow *rowOf(const ActionProof &proof)
{
    QString argument;
    return MenuRows::find(QLatin1String(proof.key), &argument);
}

// A proof's name in a failure.
std::string name(const ActionProof &proof, int number)
{
    return "proof " + std::to_string(number) + ", "
           + (*proof.key ? proof.key : "operation " + std::to_string(proof.operation));
}

// Entries of lists and those with a state show it.
bool hasMark(const MenuRow &row)
{
    const bool isChosen = row.kind == MenuRow::Kind::List && row.place != MenuPlace::Top;
    return isChosen || row.isChecked != nullptr;
}

// Those that are switched off by choosing them again.
bool isToggle(const MenuRow &row)
{
    return row.place == MenuPlace::Top || row.place == MenuPlace::Shaders;
}

} // namespace

TEST_F(Actions, EveryEntryOfTheMenuActs)
{
    ASSERT_FALSE(TestDiscs::dvdImage().isEmpty()) << TestDiscs::error().toStdString();
    ASSERT_TRUE(DriveLetters::instance()->bind(QLatin1Char(ActionProofs::DiscDrive), TestDiscs::dvdImage()));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_rig.isOffered("open disc_Q"); }, Eventually::WaitMs));
    int number = 0;
    for (const ActionProof &proof : ActionProofs::ofMenu()) {
        SCOPED_TRACE(name(proof, number++));
        if (!begin(proof))
            continue;
        EXPECT_TRUE(m_rig.choose(proof.key));
        check(proof);
        const MenuRow &row = *rowOf(proof);
        const bool isOff = proof.wanted == QLatin1String("no") || proof.wanted.isEmpty();
        if (hasMark(row)) {
            const bool wanted = !(isToggle(row) && isOff);
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return m_rig.isMarked(proof.key) == wanted; }, Eventually::WaitMs))
                << "its mark";
        }
    }
    DriveLetters::instance()->unbind(QLatin1Char(ActionProofs::DiscDrive));
}

TEST_F(Actions, EveryKeyOfAnEntryActsAsTheEntry)
{
    int number = 0;
    for (const ActionProof &proof : ActionProofs::ofMenu()) {
        const MenuRow *row = rowOf(proof);
        ++number;
        if (row == nullptr || row->keyOperation == MenuRow::NoKeyOperation)
            continue;
        SCOPED_TRACE(name(proof, number - 1));
        if (!begin(proof))
            continue;
        EXPECT_TRUE(m_rig.press(KeyOperateType(row->keyOperation)));
        check(proof);
    }
}

TEST_F(Actions, EveryKeyWithoutAnEntryActs)
{
    int number = 0;
    for (const ActionProof &proof : ActionProofs::ofKeysAlone()) {
        SCOPED_TRACE(name(proof, number++));
        if (!begin(proof))
            continue;
        EXPECT_TRUE(m_rig.press(proof.operation));
        check(proof);
    }
}

TEST_F(Actions, EveryRowAndEveryOperationHasItsProof)
{
    std::set<const MenuRow *> rows;
    std::set<int> operations;
    for (const ActionProof &proof : ActionProofs::ofMenu()) {
        ASSERT_NE(rowOf(proof), nullptr) << proof.key;
        rows.insert(rowOf(proof));
        operations.insert(rowOf(proof)->keyOperation);
    }
    for (const char *key : ActionProofs::entriesOfDiscMenus()) {
        QString argument;
        rows.insert(MenuRows::find(QLatin1String(key), &argument));
    }
    for (const MenuRow &row : MenuRows::all()) {
        if (row.kind == MenuRow::Kind::Command || row.kind == MenuRow::Kind::List) {
            EXPECT_EQ(rows.count(&row), 1U) << row.key;
        }
    }
    for (const ActionProof &proof : ActionProofs::ofKeysAlone()) {
        EXPECT_EQ(MenuRows::find(proof.operation), nullptr) << "it stands in the menu: " << proof.operation;
        operations.insert(proof.operation);
    }
    for (const KeyOperateType operation : ActionProofs::operationsOfDiscMenus())
        operations.insert(operation);
    const KeyMap map = KeyMapTables::defaultPcKeyMap();
    for (auto it = map.cbegin(); it != map.cend(); ++it)
        EXPECT_EQ(operations.count(it.key()), 1U) << it.key();
}

TEST_F(Actions, MenusOfDiscsAreGreyedAndTheEngineSaysWhatItLacks)
{
    ASSERT_TRUE(m_rig.play(TestDiscs::dvdFolder()));
    for (const char *key : ActionProofs::entriesOfDiscMenus())
        EXPECT_FALSE(m_rig.isOffered(key)) << key;
    const QString line = QStringLiteral("disc menus cannot be shown");
    for (const KeyOperateType operation : ActionProofs::operationsOfDiscMenus()) {
        const int before = m_rig.engineLines(line);
        EXPECT_TRUE(m_rig.press(operation));
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return m_rig.engineLines(line) == before + 1; }, Eventually::WaitMs))
            << operation;
        EXPECT_TRUE(m_rig.player().isPlaying());
        // The engine says it once in its life.
        m_rig.restart();
        ASSERT_TRUE(m_rig.play(TestDiscs::dvdFolder()));
    }
}
