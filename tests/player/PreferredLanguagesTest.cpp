#include "player/PreferredLanguages.h"

#include "core/LanguageTable.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class PreferredLanguagesTest : public testing::Test {
protected:
    QTemporaryDir m_folder;
    SettingsManager m_settings{m_folder.filePath(QStringLiteral("config.ini"))};
};

} // namespace

TEST_F(PreferredLanguagesTest, EveryLanguageOfTheSettingsHasNames)
{
    for (const auto &list : {LanguageTable::entries(), LanguageTable::interfaceLanguages()}) {
        for (const LanguageEntry &entry : list)
            EXPECT_FALSE(PreferredLanguages::namesOf(entry.code).isEmpty()) << qPrintable(entry.code);
    }
    EXPECT_EQ(PreferredLanguages::namesOf("rubbish"), QString());
}

TEST_F(PreferredLanguagesTest, TheProgramsLanguageWhereNothingElseIsAsked)
{
    m_settings.setLanguage("GER");
    EXPECT_EQ(PreferredLanguages::ofSound(m_settings), "deu,ger,de");
    EXPECT_EQ(PreferredLanguages::ofSubtitles(m_settings), "deu,ger,de");
    m_settings.setValue(SettingsKeys::PC_AudioLanguage, "same");
    EXPECT_EQ(PreferredLanguages::ofSound(m_settings), "deu,ger,de");
}

TEST_F(PreferredLanguagesTest, SoundAndSubtitlesAreAskedApart)
{
    m_settings.setValue(SettingsKeys::PC_AudioLanguage, "JPN");
    m_settings.setValue(SettingsKeys::PC_SubtitleLanguage, "close");
    EXPECT_EQ(PreferredLanguages::ofSound(m_settings), "jpn,ja");
    EXPECT_EQ(PreferredLanguages::ofSubtitles(m_settings), "close");
}
