#include "DesktopSandbox_linux.h"

#include "shell/MimeAppsList_linux.h"
#include "support/FileSizeLimit_linux.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

const QString kEntry = QStringLiteral("ours.desktop");
const QString kMkv = QStringLiteral("mkv");
const QStringList kMatroska{QStringLiteral("video/x-matroska")};

class MimeAppsListTest : public testing::Test {
protected:
    void write(const QByteArray &content) const { m_sandbox.write(DesktopSandbox::listName(), content); }
    QByteArray content() const { return m_sandbox.content(DesktopSandbox::listName()); }
    QString file() const { return m_sandbox.path(DesktopSandbox::listName()); }

    // Loads, works and saves.
    template<typename Work>
    bool change(Work work) const
    {
        MimeAppsList list(file());
        if (!list.load())
            return false;
        work(list);
        return list.save();
    }
    bool take(const QString &name, const QStringList &types) const
    {
        return change([&](MimeAppsList &list) { list.take(name, types, kEntry); });
    }
    bool giveBack(const QString &name) const
    {
        return change([&](MimeAppsList &list) { list.giveBack(name, kEntry); });
    }
    QString firstChoice(const QString &type) const
    {
        MimeAppsList list(file());
        EXPECT_TRUE(list.load());
        return list.firstChoice(type);
    }
    bool isTaken(const QString &name) const
    {
        MimeAppsList list(file());
        return list.load() && list.isTaken(name, kEntry);
    }

    DesktopSandbox m_sandbox;
};

TEST_F(MimeAppsListTest, TakenAndGivenBackTheFileIsTheSameByteByByte)
{
    const QByteArray texts[] = {
        "[Default Applications]\nvideo/x-matroska=other.desktop;third.desktop;\ntext/plain=edit.desktop\n",
        "# mine\n\n[Default Applications]\n\n# a film\nvideo/x-matroska = other.desktop\n",
        "[Default Applications]\nvideo/x-matroska=other.desktop\n\n[Removed Associations]\nx/y=z.desktop;\n",
        "[Added Associations]\nvideo/x-matroska=other.desktop;\n",
        "[Default Applications]\r\ntext/plain=edit.desktop\r\n",
        "[Default Applications]\ntext/plain=edit.desktop",
    };
    for (const QByteArray &text : texts) {
        SCOPED_TRACE(text.constData());
        write(text);
        ASSERT_TRUE(take(kMkv, kMatroska));
        EXPECT_EQ(firstChoice(kMatroska[0]), kEntry);
        EXPECT_TRUE(isTaken(kMkv));
        ASSERT_TRUE(giveBack(kMkv));
        EXPECT_FALSE(isTaken(kMkv));
        // A line that was changed twice has its value back, without the blanks around the sign.
        EXPECT_EQ(content(), QByteArray(text).replace("x-matroska = other", "x-matroska=other"));
    }
}

TEST_F(MimeAppsListTest, NoFileBeforeIsNoFileAfter)
{
    ASSERT_TRUE(take(kMkv, kMatroska));
    EXPECT_EQ(firstChoice(kMatroska[0]), kEntry);
    ASSERT_TRUE(giveBack(kMkv));
    EXPECT_FALSE(m_sandbox.has(DesktopSandbox::listName()));
}

TEST_F(MimeAppsListTest, WhatOpenedTheFilesBeforeStaysBehindOurs)
{
    write("[Default Applications]\nvideo/x-matroska=other.desktop;third.desktop;\n");
    ASSERT_TRUE(take(kMkv, kMatroska));
    EXPECT_TRUE(content().contains("\nvideo/x-matroska=ours.desktop;other.desktop;third.desktop;\n"));
}

TEST_F(MimeAppsListTest, TakingTwiceKeepsTheFirstBackup)
{
    const QByteArray before = "[Default Applications]\nvideo/x-matroska=other.desktop;\n";
    write(before);
    ASSERT_TRUE(take(kMkv, kMatroska));
    write(content().replace("ours.desktop;other.desktop;", "third.desktop;"));
    EXPECT_FALSE(isTaken(kMkv));
    ASSERT_TRUE(take(kMkv, kMatroska));
    EXPECT_TRUE(isTaken(kMkv));
    ASSERT_TRUE(giveBack(kMkv));
    EXPECT_EQ(content(), before);
}

TEST_F(MimeAppsListTest, AnotherChoiceMadeSinceIsTheUsersAndStays)
{
    write("[Default Applications]\nvideo/x-matroska=other.desktop;\n");
    ASSERT_TRUE(take(kMkv, kMatroska));
    write(content().replace("matroska=ours.desktop;other.desktop;", "matroska=new.desktop;ours.desktop;"));
    ASSERT_TRUE(giveBack(kMkv));
    EXPECT_EQ(content(), "[Default Applications]\nvideo/x-matroska=new.desktop;\n");
}

TEST_F(MimeAppsListTest, ATypeStaysTakenWhileAnotherExtensionNeedsIt)
{
    const QByteArray before = "[Default Applications]\nvideo/mpeg=other.desktop;\n";
    write(before);
    ASSERT_TRUE(take("mpg", {"video/mpeg"}));
    ASSERT_TRUE(take("mpeg", {"video/mpeg"}));
    ASSERT_TRUE(giveBack("mpg"));
    EXPECT_EQ(firstChoice("video/mpeg"), kEntry);
    EXPECT_FALSE(isTaken("mpg"));
    EXPECT_TRUE(isTaken("mpeg"));
    ASSERT_TRUE(giveBack("mpeg"));
    EXPECT_EQ(content(), before);
}

TEST_F(MimeAppsListTest, ARemovedAssociationIsAllowedAgainAndRemovedAgain)
{
    const QByteArray before = "[Removed Associations]\nvideo/x-matroska=a.desktop;ours.desktop;\n";
    write(before);
    ASSERT_TRUE(take(kMkv, kMatroska));
    EXPECT_TRUE(content().contains("[Removed Associations]\nvideo/x-matroska=a.desktop;\n"));
    ASSERT_TRUE(giveBack(kMkv));
    EXPECT_EQ(content(), before);
}

TEST_F(MimeAppsListTest, OurOwnEntryIsNothingToComeBackTo)
{
    write("[Default Applications]\nvideo/x-matroska=ours.desktop;other.desktop;\n");
    EXPECT_FALSE(isTaken(kMkv));
    ASSERT_TRUE(take(kMkv, kMatroska));
    ASSERT_TRUE(giveBack(kMkv));
    EXPECT_EQ(content(), "[Default Applications]\nvideo/x-matroska=other.desktop;\n");
}

TEST_F(MimeAppsListTest, GivingBackWhatWasNeverTakenTouchesNothing)
{
    const QByteArray before = "[Default Applications]\nvideo/x-matroska=ours.desktop;\n";
    write(before);
    ASSERT_TRUE(giveBack(kMkv));
    EXPECT_EQ(content(), before);
}

TEST_F(MimeAppsListTest, AListCutAtAnyByteIsReadWithoutLosingWhatIsLeft)
{
    write("[Default Applications]\nvideo/x-matroska=other.desktop;\n");
    ASSERT_TRUE(take(kMkv, kMatroska));
    const QByteArray whole = content();
    for (int size = 0; size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        write(whole.left(size));
        ASSERT_TRUE(take("mpg", {"video/mpeg"}));
        EXPECT_EQ(firstChoice("video/mpeg"), kEntry);
        ASSERT_TRUE(giveBack(kMkv));
        ASSERT_TRUE(giveBack("mpg"));
        EXPECT_NE(firstChoice("video/mpeg"), kEntry);
        // Given back as soon as the mark can be read; until then what is to be given back stays.
        if (whole.left(size).contains("KelFile]\nmkv=video/x-matroska")) {
            EXPECT_EQ(firstChoice(kMatroska[0]), "other.desktop");
        } else if (whole.left(size).contains("KelFile.backup]\nvideo/x-matroska=other.desktop;\n")) {
            EXPECT_TRUE(content().contains("KelFile.backup]\nvideo/x-matroska=other.desktop;"));
        }
    }
}

TEST_F(MimeAppsListTest, AFullDiskLeavesTheFileAsItWas)
{
    const QByteArray before = "[Default Applications]\n" + QByteArray(4000, '#') + "\n";
    write(before);
    {
        const FileSizeLimit limit(2000);
        EXPECT_FALSE(take(kMkv, kMatroska));
    }
    EXPECT_EQ(content(), before);
    EXPECT_EQ(QDir(m_sandbox.path("config")).entryList(QDir::Files), QStringList{"mimeapps.list"});
}

TEST_F(MimeAppsListTest, AReadOnlyFileStaysAsItIs)
{
    const QByteArray before = "[Default Applications]\n";
    write(before);
    ASSERT_TRUE(QFile::setPermissions(file(), QFile::ReadOwner));
    EXPECT_FALSE(take(kMkv, kMatroska));
    EXPECT_EQ(content(), before);
    ASSERT_TRUE(QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner));
}

TEST_F(MimeAppsListTest, AFolderOrAPipeInItsPlaceIsAFailureWithoutAStall)
{
    ASSERT_TRUE(QDir().mkpath(file()));
    EXPECT_FALSE(take(kMkv, kMatroska));
    ASSERT_TRUE(QDir().rmdir(file()));
    ASSERT_EQ(::mkfifo(QFile::encodeName(file()).constData(), S_IRUSR | S_IWUSR), 0);
    EXPECT_FALSE(take(kMkv, kMatroska));
    EXPECT_FALSE(isTaken(kMkv));
}

TEST_F(MimeAppsListTest, AFileThatIsALinkIsWrittenWhereItPoints)
{
    m_sandbox.write("elsewhere/list", "[Default Applications]\n");
    ASSERT_TRUE(QFile::link(m_sandbox.path("elsewhere/list"), file()));
    ASSERT_TRUE(take(kMkv, kMatroska));
    EXPECT_TRUE(QFileInfo(file()).isSymLink());
    EXPECT_TRUE(m_sandbox.content("elsewhere/list").contains("ours.desktop"));
}

} // namespace
