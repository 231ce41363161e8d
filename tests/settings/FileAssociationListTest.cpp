#include "FakeSettingsHost.h"
#include "TestSettings.h"

#include "core/CommonInfoManager.h"
#include "settings/FileAssociationList.h"
#include "support/TestLog.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>

using Problem = FileAssociationList::Problem;

namespace {

class FileAssociationListTest : public testing::Test {
protected:
    TestSettings m_store;
    FakeSettingsHost m_host;
};

} // namespace

TEST(FileAssociationText, IsChecked)
{
    const std::pair<const char *, Problem> rows[] = {
        {"*.mkv;*.mp4;", Problem::None},
        {"*.mkv; *.mp4;\n*.avi;", Problem::None},
        {"*.MKV;", Problem::None},
        {"*.mkv", Problem::None}, // the last separator may be missing
        {"", Problem::None},
        {"mkv;", Problem::Form},
        {"*.mkv*.mp4;", Problem::Form},
        {"*xmkv;", Problem::Form},
        {"*.mkv,*.mp4;", Problem::Form},
        {"*.;", Problem::Form},
        {";", Problem::Form},
        {"*.docx;", Problem::Unknown},
        {"*.mkv;*.exe;", Problem::Unknown},
    };
    for (const auto &[text, problem] : rows)
        EXPECT_EQ(FileAssociationList::problemOf(QString::fromLatin1(text)), problem) << text;
}

TEST(FileAssociationText, EverythingTheProgramPlaysIsRight)
{
    EXPECT_EQ(
        FileAssociationList::problemOf(FileAssociationList::textOf(CommonInfoManager::playableExtensions())),
        Problem::None);
}

TEST(FileAssociationText, ALongWrongTextCostsNoTime)
{
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(FileAssociationList::problemOf(QString(200000, QLatin1Char('a'))), Problem::Form);
    EXPECT_EQ(FileAssociationList::problemOf(QStringLiteral("*.mkv; ").repeated(20000) + QLatin1Char('!')),
              Problem::Form);
    EXPECT_LT(time.elapsed(), 2000);
}

TEST(FileAssociationText, EachExtensionCountsOnce)
{
    EXPECT_EQ(FileAssociationList::extensionsOf(QStringLiteral("*.MKV; *.mkv;*.mp4")),
              (QStringList{QStringLiteral("mkv"), QStringLiteral("mp4")}));
}

TEST_F(FileAssociationListTest, TheDifferencesGoToTheSystem)
{
    m_host.associated = QStringList{QStringLiteral("avi"), QStringLiteral("mkv")};
    FileAssociationList list(m_host);
    list.load(*m_store);
    list.setEnabled(true);
    list.setText(QStringLiteral("*.mkv;*.mp4;"));
    list.save(*m_store);
    EXPECT_EQ(m_host.added, QStringList{QStringLiteral("mp4")});
    EXPECT_EQ(m_host.removed, QStringList{QStringLiteral("avi")});
    EXPECT_TRUE(m_store->enableFileAssociation());
    EXPECT_EQ(m_store->fileAssociations(), (QStringList{QStringLiteral("mkv"), QStringLiteral("mp4")}));
    const QString log = TestLog::infoLines().join('\n');
    EXPECT_TRUE(log.contains(QStringLiteral("[FileAss] Current System List:  avi;mkv")));
    EXPECT_TRUE(log.contains(QStringLiteral("[FileAss] Add List:  mp4")));
    EXPECT_TRUE(log.contains(QStringLiteral("[FileAss] Remove List:  avi")));
}

TEST_F(FileAssociationListTest, ARefusalPutsTheStoreBackAndIsTold)
{
    m_host.takesAssociations = false;
    FileAssociationList list(m_host);
    list.load(*m_store);
    list.setEnabled(true);
    QSignalSpy refused(&list, &FileAssociationList::refused);
    list.save(*m_store);
    EXPECT_EQ(refused.count(), 1);
    EXPECT_FALSE(m_store->enableFileAssociation());
    EXPECT_FALSE(list.isEnabled());
}

TEST_F(FileAssociationListTest, ThoseWhoNeverSwitchedItOnAreLeftAlone)
{
    m_host.associated = QStringList{QStringLiteral("mkv")};
    FileAssociationList list(m_host);
    list.load(*m_store);
    list.save(*m_store);
    EXPECT_TRUE(m_host.calls.isEmpty());
}

TEST_F(FileAssociationListTest, SwitchedOffItTakesAllBack)
{
    m_store->setEnableFileAssociation(true);
    m_host.associated = QStringList{QStringLiteral("mkv"), QStringLiteral("mp4")};
    FileAssociationList list(m_host);
    list.load(*m_store);
    EXPECT_TRUE(list.isEnabled());
    list.setEnabled(false);
    list.save(*m_store);
    EXPECT_EQ(m_host.removed, m_host.associated);
    EXPECT_TRUE(m_host.added.isEmpty());
}

TEST_F(FileAssociationListTest, NothingToChangeAsksForNothing)
{
    m_store->setEnableFileAssociation(true);
    m_store->setFileAssociations({QStringLiteral("mkv")});
    m_host.associated = QStringList{QStringLiteral("mkv")};
    FileAssociationList list(m_host);
    list.load(*m_store);
    list.save(*m_store);
    EXPECT_TRUE(m_host.calls.isEmpty());
}

TEST_F(FileAssociationListTest, StoredTypesOfOlderFilesAndRubbishAreRead)
{
    m_store->setFileAssociations({QStringLiteral(".MKV"), QStringLiteral("*.mp4"), QStringLiteral("!!"),
                                  QString(), QStringLiteral("mkv")});
    FileAssociationList list(m_host);
    list.load(*m_store);
    EXPECT_EQ(list.extensions(), (QStringList{QStringLiteral("mkv"), QStringLiteral("mp4")}));
}

TEST_F(FileAssociationListTest, AWrongTextIsNoProblemWhileItIsOff)
{
    FileAssociationList list(m_host);
    list.setText(QStringLiteral("rubbish"));
    EXPECT_EQ(list.problem(), Problem::None);
    list.setEnabled(true);
    EXPECT_EQ(list.problem(), Problem::Form);
    list.setText(QStringLiteral("*.docx;"));
    EXPECT_EQ(list.problemText(), QStringLiteral("Oops! This file extension is not supported yet."));
}

TEST_F(FileAssociationListTest, AnAnswerThatComesAfterTheDialogIsGoneStillCounts)
{
    class LateHost final : public FakeSettingsHost {
    public:
        std::function<void(const QStringList &)> answer;
        std::function<void(bool)> done;
        void readAssociations(std::function<void(const QStringList &)> given) override
        {
            answer = std::move(given);
        }
        void changeAssociations(const QStringList &, const QStringList &,
                                std::function<void(bool)> given) override
        {
            done = std::move(given);
        }
    } host;
    {
        FileAssociationList list(host);
        list.load(*m_store);
        list.setEnabled(true);
        list.save(*m_store);
    }
    ASSERT_TRUE(host.answer);
    host.answer({});
    ASSERT_TRUE(host.done);
    EXPECT_TRUE(m_store->enableFileAssociation());
    host.done(false);
    EXPECT_FALSE(m_store->enableFileAssociation());
}
