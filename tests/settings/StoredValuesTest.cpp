// What stands in the file and what the pages make of it.
#include "FakeSettingsHost.h"
#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "player/StoredPreferences.h"
#include "settings/SettingsModel.h"

#include <gtest/gtest.h>

using namespace SettingTables;

namespace {

// None of these is what a page would write; some are within a row's range, most are not.
const QVariant strange[] = {QStringLiteral("-7"),   QStringLiteral("2"),        QStringLiteral("3"),
                            QStringLiteral("5"),    QStringLiteral("7"),        QStringLiteral("31"),
                            QStringLiteral("9999"), QStringLiteral("perhaps"),  QStringLiteral("TRUE"),
                            QStringLiteral("1.5"),  QStringLiteral("#12345"),   QStringLiteral("red"),
                            QStringLiteral(""),     QStringList{"a", "b", "c"}, 3.7};

class StoredValuesTest : public testing::Test {
protected:
    // All rows of all pages that are stored.
    static QList<SettingBinding *> stored(const SettingsModel &model)
    {
        QList<SettingBinding *> rows;
        for (int page = 0; page < SettingsPageCount; ++page) {
            for (SettingBinding *row : model.bindings(SettingsPageId(page))) {
                if (row->row().isStored)
                    rows << row;
            }
        }
        return rows;
    }

    TestSettings m_store;
    FakeSettingsHost m_host;
};

constexpr const NumberRow *numbers[] = {&PreferenceRows::SdrMode,     &PreferenceRows::SdrValue,
                                        &PreferenceRows::HdrMode,     &PreferenceRows::ColorMode,
                                        &PreferenceRows::Speaker,     &PreferenceRows::Amplification,
                                        &PreferenceRows::FontSize,    &PreferenceRows::Region,
                                        &PreferenceRows::AudioOffset, &PreferenceRows::SubtitleOffset};

constexpr const FlagRow *flags[] = {
    &PreferenceRows::Hardware, &PreferenceRows::Hdr,         &PreferenceRows::Ac3,
    &PreferenceRows::Dts,      &PreferenceRows::TrueHd,      &PreferenceRows::Bold,
    &PreferenceRows::Italic,   &PreferenceRows::OverrideAss, &PreferenceRows::OutLine};

constexpr const TextRow *colors[] = {&PreferenceRows::FontColor, &PreferenceRows::OutLineColor};

} // namespace

TEST_F(StoredValuesTest, OkWritesWhatNobodyHasChangedAsItWas)
{
    for (const QVariant &value : strange) {
        SettingsModel model(*m_store, m_host);
        const QList<SettingBinding *> rows = stored(model);
        ASSERT_GT(rows.size(), 40);
        for (const SettingBinding *row : rows)
            m_store->setValue(row->key(), value);
        // It is one of those that there are, and not another than the stored one for want of it.
        m_store->setValue(SettingsKeys::PC_DefaultAudioDeviceName, QStringLiteral("Receiver"));
        model.load();
        (void)model.save();
        for (const SettingBinding *row : rows) {
            if (qstrcmp(row->row().key, SettingsKeys::PC_DefaultAudioDeviceName) != 0) {
                EXPECT_EQ(m_store->value(row->key()), value)
                    << row->row().key << ", " << value.toString().toStdString();
            }
        }
    }
}

TEST_F(StoredValuesTest, ThePageShowsWhatTheEngineGets)
{
    for (const QVariant &value : strange) {
        SettingsModel model(*m_store, m_host);
        for (const SettingBinding *row : stored(model))
            m_store->setValue(row->key(), value);
        model.load();
        StoredPreferences engine(*m_store, StoredPreferences::Absent::Stays);
        const std::string text = value.toString().toStdString();
        for (const NumberRow *row : numbers)
            EXPECT_EQ(model.value(row->key).toInt(), engine.number(*row)) << row->key << ", " << text;
        for (const FlagRow *row : flags)
            EXPECT_EQ(model.value(row->key).toBool(), engine.flag(*row)) << row->key << ", " << text;
        for (const TextRow *row : colors)
            EXPECT_EQ(model.value(row->key).toString(), engine.color(*row)) << row->key << ", " << text;
        EXPECT_EQ(model.value(SettingsKeys::PC_PassThrough).toBool(),
                  engine.number(PreferenceRows::PassThrough) != 0)
            << text;
    }
}

TEST_F(StoredValuesTest, EveryNumberThatTheEngineTakesCanBeShown)
{
    const SettingsModel model(*m_store, m_host);
    for (const NumberRow *row : numbers) {
        for (int number = row->least; number <= row->most; ++number)
            EXPECT_EQ(model.binding(row->key)->accepted(number), QVariant(number)) << row->key;
    }
}

TEST_F(StoredValuesTest, AnotherOutputModeIsStoredWithAPassThroughThatStays)
{
    m_store->setValue(SettingsKeys::PC_DefaultAudioDeviceName, QStringLiteral("Receiver"));
    m_store->setValue(SettingsKeys::PC_PassThrough, 31);
    SettingsModel model(*m_store, m_host);
    model.load();
    EXPECT_EQ(model.value(OutputMode), int(OutputHdmi));
    (void)model.save();
    EXPECT_EQ(m_store->value(SettingsKeys::PC_PassThrough).toInt(), 31);
    model.setValue(OutputMode, int(OutputOptical));
    (void)model.save();
    EXPECT_EQ(m_store->value(SettingsKeys::PC_PassThrough).toInt(), int(OutputOptical));
}

TEST_F(StoredValuesTest, AChangeIsStoredAndTakenBackAgain)
{
    m_store->setValue(SettingsKeys::PC_ColorMode, 2);
    SettingsModel model(*m_store, m_host);
    model.load();
    EXPECT_EQ(model.value(SettingsKeys::PC_ColorMode), 0) << "the limited range, as the engine has it";
    model.setValue(SettingsKeys::PC_ColorMode, PreferenceRows::FullRange);
    (void)model.save();
    EXPECT_EQ(m_store->value(SettingsKeys::PC_ColorMode).toInt(), 1);
    model.setValue(SettingsKeys::PC_ColorMode, 0);
    (void)model.save();
    EXPECT_EQ(m_store->value(SettingsKeys::PC_ColorMode).toInt(), 0);
}
