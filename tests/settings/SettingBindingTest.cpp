#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "settings/SettingBinding.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace {

SettingRow switchRow(bool standard)
{
    return {SettingsKeys::PC_AutoPlay, SettingControl::Switch, "Text", SaveStep::General, standard};
}

SettingRow choiceRow()
{
    return {SettingsKeys::PC_HDRMode,     SettingControl::Choice, "Text", SaveStep::Video, 0,
            {{"First", 0}, {"Second", 1}}};
}

SettingRow sliderRow()
{
    SettingRow row{SettingsKeys::PC_SDRValue, SettingControl::Slider, "Text", SaveStep::Video, 50};
    row.minimum = 0;
    row.maximum = 100;
    return row;
}

} // namespace

TEST(SettingBinding, AnAbsentKeyShowsTheDefault)
{
    TestSettings store;
    SettingBinding binding(switchRow(true));
    binding.setValue(false);
    binding.load(*store);
    EXPECT_EQ(binding.value(), true);
    EXPECT_FALSE(binding.isChanged());
}

TEST(SettingBinding, AStoredValueOfAnotherKindGivesTheDefault)
{
    TestSettings store;
    store->setValue(SettingsKeys::PC_AutoPlay, QStringLiteral("perhaps"));
    store->setValue(SettingsKeys::PC_HDRMode, 7);
    store->setValue(SettingsKeys::PC_SDRValue, QStringLiteral("bright"));
    SettingBinding onOff(switchRow(true));
    SettingBinding choice(choiceRow());
    SettingBinding slider(sliderRow());
    for (SettingBinding *each : {&onOff, &choice, &slider})
        each->load(*store);
    EXPECT_EQ(onOff.value(), true);
    EXPECT_EQ(choice.value(), 0);
    EXPECT_EQ(slider.value(), 50);
}

TEST(SettingBinding, TextsOfTheFileBecomeValuesOfTheRow)
{
    TestSettings store;
    store->setValue(SettingsKeys::PC_AutoPlay, QStringLiteral("false"));
    store->setValue(SettingsKeys::PC_HDRMode, QStringLiteral("1"));
    SettingBinding onOff(switchRow(true));
    SettingBinding choice(choiceRow());
    onOff.load(*store);
    choice.load(*store);
    EXPECT_EQ(onOff.value().type(), QVariant::Bool);
    EXPECT_EQ(onOff.value(), false);
    EXPECT_EQ(choice.value().type(), QVariant::Int);
    EXPECT_EQ(choice.value(), 1);
}

TEST(SettingBinding, ANumberOutsideTheRangeIsBroughtIntoIt)
{
    TestSettings store;
    store->setValue(SettingsKeys::PC_SDRValue, 5000);
    SettingBinding slider(sliderRow());
    slider.load(*store);
    EXPECT_EQ(slider.value(), 100);
    slider.setValue(-3);
    EXPECT_EQ(slider.value(), 0);
}

TEST(SettingBinding, AValueThatTheRowCannotHoldChangesNothing)
{
    SettingBinding choice(choiceRow());
    QSignalSpy changed(&choice, &SettingBinding::valueChanged);
    choice.setValue(9);
    choice.setValue(QStringLiteral("second"));
    EXPECT_EQ(choice.value(), 0);
    EXPECT_EQ(changed.count(), 0);
    choice.setValue(1);
    EXPECT_EQ(changed.count(), 1);
}

TEST(SettingBinding, AColorIsStoredInSixDigits)
{
    SettingBinding color({SettingsKeys::PC_FontColor, SettingControl::Color, "Text", SaveStep::Subtitle,
                          QStringLiteral("#ffffff")});
    color.setValue(QStringLiteral("#80FF0000"));
    EXPECT_EQ(color.value(), QStringLiteral("#ff0000"));
    color.setValue(QStringLiteral("no colour"));
    EXPECT_EQ(color.value(), QStringLiteral("#ff0000"));
}

TEST(SettingBinding, AKeptOneLeavesTheStoreAsItIs)
{
    TestSettings store;
    store->setValue(SettingsKeys::PC_AutoPlay, true);
    SettingBinding binding(switchRow(true));
    binding.setValue(false);
    binding.setKept(true);
    EXPECT_FALSE(binding.save(*store));
    EXPECT_TRUE(store->value(SettingsKeys::PC_AutoPlay).toBool());
    binding.setKept(false);
    EXPECT_TRUE(binding.save(*store));
    EXPECT_FALSE(store->value(SettingsKeys::PC_AutoPlay).toBool());
}

TEST(SettingBinding, AProblemGoesWithTheNextValue)
{
    SettingBinding binding(switchRow(true));
    QSignalSpy told(&binding, &SettingBinding::problemChanged);
    binding.setProblem(QStringLiteral("no"));
    binding.setValue(false);
    EXPECT_TRUE(binding.problem().isEmpty());
    EXPECT_EQ(told.count(), 2);
}

TEST(SettingBinding, ACodeStandsBetweenStoreAndValue)
{
    TestSettings store;
    store->setValue(SettingsKeys::PC_AutoPlay, 3);
    SettingBinding binding(switchRow(false));
    binding.setCode([](const QVariant &stored) { return QVariant(stored.toInt() > 0); },
                    [](const QVariant &shown) { return QVariant(shown.toBool() ? 4 : 0); });
    binding.load(*store);
    EXPECT_EQ(binding.value(), true);
    (void)binding.save(*store);
    EXPECT_EQ(store->value(SettingsKeys::PC_AutoPlay).toInt(), 3) << "nobody has changed it";
    binding.setValue(false);
    (void)binding.save(*store);
    EXPECT_EQ(store->value(SettingsKeys::PC_AutoPlay).toInt(), 0);
    binding.setValue(true);
    (void)binding.save(*store);
    EXPECT_EQ(store->value(SettingsKeys::PC_AutoPlay).toInt(), 4);
}
