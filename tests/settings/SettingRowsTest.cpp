// Every row of the tables: set, save, load, default.
#include "FakeSettingsHost.h"
#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "settings/SettingsModel.h"

#include <gtest/gtest.h>

#include <QSet>

namespace {

SettingsFacts windowsFacts()
{
    SettingsFacts facts = FakeSettingsHost().known;
    facts.isWindows = true;
    facts.isWindows8OrLater = true;
    return facts;
}

struct RowCase {
    SettingsPageId page;
    int index;
    std::string name;
};

std::vector<RowCase> allRows()
{
    std::vector<RowCase> cases;
    for (int page = 0; page < SettingsPageCount; ++page) {
        const auto rows = SettingTables::rows(SettingsPageId(page), windowsFacts());
        for (std::size_t index = 0; index < rows.size(); ++index)
            cases.push_back({SettingsPageId(page), int(index), rows[index].key});
    }
    return cases;
}

// A value that is not the default.
QVariant otherValue(const SettingRow &row)
{
    // A mode without a device is not kept: it is that of the device.
    if (qstrcmp(row.key, SettingTables::OutputMode) == 0)
        return int(SettingTables::OutputHdmi);
    switch (row.control) {
    case SettingControl::Switch:
    case SettingControl::None:
        return !row.standard.toBool();
    case SettingControl::Choice:
    case SettingControl::Radio:
        return row.choices.back().value == row.standard ? row.choices.front().value
                                                        : row.choices.back().value;
    case SettingControl::Slider:
        return row.standard.toInt() == row.maximum ? row.minimum : row.maximum;
    case SettingControl::Color:
        return QStringLiteral("#12ab9f");
    case SettingControl::Device:
        return QStringLiteral("Optical out");
    default:
        return QStringLiteral("/some/value with spaces, and a comma");
    }
}

class SettingRowsTest : public testing::TestWithParam<RowCase> {};

} // namespace

TEST_P(SettingRowsTest, IsSetSavedLoadedAndPutBack)
{
    TestSettings store;
    FakeSettingsHost host;
    host.known = windowsFacts();
    SettingsModel model(*store, host);
    model.load();
    // So that nothing of what is saved is put aside by a rule.
    model.setValue(SettingTables::ProxyChoice, int(SettingTables::ManualProxy));
    model.setValue(SettingTables::OutputMode, int(SettingTables::OutputOptical));
    SettingBinding *binding = model.bindings(GetParam().page).at(GetParam().index);
    ASSERT_EQ(binding->row().key, GetParam().name);
    const QVariant wanted = otherValue(binding->row());
    ASSERT_NE(wanted, binding->row().standard);
    binding->setValue(wanted);
    ASSERT_EQ(binding->value(), wanted);
    const QStringList written = model.save();

    if (binding->row().isStored) {
        EXPECT_TRUE(written.contains(binding->key()));
        EXPECT_TRUE(store->contains(binding->key()));
    }
    // Through the file, where everything is a text.
    store->sync();
    SettingsManager again(store->fileName());
    SettingsModel second(again, host);
    second.load();
    SettingBinding *loaded = second.bindings(GetParam().page).at(GetParam().index);
    EXPECT_EQ(loaded->value(), wanted);
    EXPECT_EQ(loaded->value().type(), binding->row().standard.type());

    second.setDefaults();
    if (binding->row().control == SettingControl::Device)
        EXPECT_EQ(loaded->value(), host.devices.first().name);
    else if (GetParam().name == SettingTables::OutputMode)
        EXPECT_EQ(loaded->value(), host.devices.first().connection);
    else
        EXPECT_EQ(loaded->value(), binding->row().standard);
    EXPECT_EQ(again.value(binding->key()).toString(), store->value(binding->key()).toString());
}

INSTANTIATE_TEST_SUITE_P(All, SettingRowsTest, testing::ValuesIn(allRows()),
                         [](const testing::TestParamInfo<RowCase> &row) { return row.param.name; });

TEST(SettingTables, NoKeyBelongsToTwoRows)
{
    QSet<QByteArray> keys;
    int count = 0;
    for (const RowCase &row : allRows()) {
        keys.insert(row.name.c_str());
        ++count;
    }
    EXPECT_EQ(keys.size(), count);
}

TEST(SettingTables, EveryDefaultIsOneThatItsRowCanHold)
{
    for (int page = 0; page < SettingsPageCount; ++page) {
        for (const SettingRow &row : SettingTables::rows(SettingsPageId(page), windowsFacts())) {
            const SettingBinding binding(row);
            EXPECT_EQ(binding.accepted(row.standard), row.standard) << row.key;
            EXPECT_EQ(SettingTables::pageOf(row.step), SettingsPageId(page)) << row.key;
        }
    }
}

TEST(SettingTables, TheProgressIsARowOfEverySystem)
{
    const FakeSettingsHost host;
    for (const SettingsFacts &facts : {host.known, windowsFacts()}) {
        bool isThere = false;
        for (const SettingRow &row : SettingTables::rows(SettingsPageId::General, facts))
            isThere = isThere || qstrcmp(row.key, SettingsKeys::PC_ShowProgress) == 0;
        EXPECT_TRUE(isThere);
    }
}

TEST(SettingTables, TheSystemsProxyHasTheNameOfItsSystem)
{
    const FakeSettingsHost host;
    EXPECT_EQ(SettingTables::rows(SettingsPageId::Network, host.known).front().choices[1].shown(),
              QStringLiteral("Use the system's proxy"));
    EXPECT_EQ(SettingTables::rows(SettingsPageId::Network, windowsFacts()).front().choices[1].shown(),
              QStringLiteral("Use IE proxy"));
}
