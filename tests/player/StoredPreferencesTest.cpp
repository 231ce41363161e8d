#include "player/StoredPreferences.h"

#include "support/TestLog.h"

#include "core/SettingsManager.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

constexpr FlagRow flagRow{"PC_Flag", true};
constexpr NumberRow numberRow{"PC_Number", 5, -10, 10};
constexpr TextRow colorRow{"PC_Color", "#ffffff"};

class StoredPreferencesTest : public testing::Test {
protected:
    // The settings as a file that holds these lines.
    StoredPreferences read(const QByteArray &lines,
                           StoredPreferences::Absent absent = StoredPreferences::Absent::Stays)
    {
        const QString path = m_folder.filePath(QStringLiteral("%1.ini").arg(++m_files));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[General]\n" + lines);
        file.close();
        m_settings = std::make_unique<SettingsManager>(path);
        return {*m_settings, absent};
    }

    static qsizetype complaints()
    {
        return TestLog::infoLines().filter(QStringLiteral("[Engine config]")).size();
    }

    QTemporaryDir m_folder;
    int m_files{0};
    std::unique_ptr<SettingsManager> m_settings;
};

} // namespace

TEST_F(StoredPreferencesTest, FlagsAreReadFromTextsAndNumbers)
{
    for (const char *text : {"true", "True", "1", "7", "-1"})
        EXPECT_TRUE(read(QByteArray("PC_Flag=") + text + "\n").flag({"PC_Flag", false})) << text;
    for (const char *text : {"false", "FALSE", "0"})
        EXPECT_FALSE(read(QByteArray("PC_Flag=") + text + "\n").flag(flagRow)) << text;
    EXPECT_EQ(complaints(), 0);
}

TEST_F(StoredPreferencesTest, AFlagThatIsNoneTakesTheDefaultAndIsTold)
{
    const char *const texts[] = {"yes please", "@ByteArray(abc)", "1.5", "true, false", "\"\""};
    for (const char *text : texts)
        EXPECT_TRUE(read(QByteArray("PC_Flag=") + text + "\n").flag(flagRow)) << text;
    EXPECT_EQ(complaints(), qsizetype(std::size(texts)));
}

TEST_F(StoredPreferencesTest, NumbersStayInsideTheirRange)
{
    EXPECT_EQ(read("PC_Number=7\n").number(numberRow), 7);
    EXPECT_EQ(read("PC_Number=-10\n").number(numberRow), -10);
    EXPECT_EQ(complaints(), 0);
    EXPECT_EQ(read("PC_Number=11\n").number(numberRow), 10);
    EXPECT_EQ(read("PC_Number=-2147483648\n").number(numberRow), -10);
    EXPECT_EQ(read("PC_Number=99999999999\n").number(numberRow), 5);
    EXPECT_EQ(read("PC_Number=seven\n").number(numberRow), 5);
    EXPECT_EQ(complaints(), 4);
}

TEST_F(StoredPreferencesTest, AColorHasSixHexadecimalDigits)
{
    EXPECT_EQ(read("PC_Color=#12aBcD\n").color(colorRow), QStringLiteral("#12aBcD"));
    EXPECT_EQ(complaints(), 0);
    const char *const texts[] = {"white", "#fff", "#12345g", "#1234567", "#ffffff;quit", "\"\""};
    for (const char *text : texts)
        EXPECT_EQ(read("PC_Color=\"" + QByteArray(text).replace("\"", "") + "\"\n").color(colorRow),
                  QStringLiteral("#ffffff"))
            << text;
    EXPECT_EQ(complaints(), qsizetype(std::size(texts)));
}

TEST_F(StoredPreferencesTest, AbsentKeysAreWrittenWhereTheGroupWantsIt)
{
    EXPECT_EQ(read("").number(numberRow), 5);
    EXPECT_FALSE(m_settings->contains(QStringLiteral("PC_Number")));
    EXPECT_EQ(read("", StoredPreferences::Absent::IsWritten).number(numberRow), 5);
    EXPECT_EQ(m_settings->value(QStringLiteral("PC_Number")).toInt(), 5);
}

TEST_F(StoredPreferencesTest, ALongValueIsToldInShort)
{
    EXPECT_EQ(read("PC_Number=" + QByteArray(100000, 'x') + "\n").number(numberRow), 5);
    EXPECT_LT(TestLog::infoLines().last().size(), 200);
}
