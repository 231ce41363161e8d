#include "app/MaintenanceRuns.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "support/TestLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace {

const QString kProduct = QStringLiteral("Quorin Player 6");

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class MaintenanceRunsTest : public testing::Test {
protected:
    MaintenanceRunsTest()
    {
        m_data = m_folder.path() + "/data";
        m_config = m_data + "/config.ini";
        m_update = m_folder.path() + "/Temp/updateTemp";
        QDir().mkpath(m_data);
        m_store = std::make_unique<SettingsManager>(m_folder.path() + "/store.ini");
    }

    MaintenanceRuns runs()
    {
        return {*m_store,
                {m_data, m_config, m_update, kProduct},
                {[this](bool on) { m_actions << (on ? "autoplay on" : "autoplay off"); },
                 [this] { m_actions << "associations"; }, [this] { m_actions << "server"; }}};
    }

    QTemporaryDir m_folder;
    QString m_data;
    QString m_config;
    QString m_update;
    std::unique_ptr<SettingsManager> m_store;
    QStringList m_actions;
};

TEST_F(MaintenanceRunsTest, InstallStoresAndLogsWhetherTheUserJoins)
{
    runs().install(true);
    EXPECT_TRUE(m_store->value(SettingsKeys::PC_AddPlan).toBool());
    EXPECT_TRUE(TestLog::infoLines().contains("[Process] join plan: true"));
    runs().install(false);
    EXPECT_TRUE(m_store->contains(SettingsKeys::PC_AddPlan));
    EXPECT_FALSE(m_store->value(SettingsKeys::PC_AddPlan).toBool());
    EXPECT_TRUE(TestLog::infoLines().contains("[Process] join plan: false"));
    EXPECT_EQ(m_actions, QStringList({"autoplay on", "autoplay on"}));
}

TEST_F(MaintenanceRunsTest, InstallRemovesAConfigurationOfAnOlderGeneration)
{
    write(m_config, "[General]\n");
    runs().install(false);
    EXPECT_FALSE(QFile::exists(m_config));
    EXPECT_TRUE(TestLog::infoLines().contains("[Install] remove " + m_config + " success"));
}

TEST_F(MaintenanceRunsTest, InstallLogsAFailedRemovalWithoutTheBlank)
{
    runs().install(false);
    EXPECT_TRUE(TestLog::infoLines().contains("[Install]remove " + m_config + " fail"));
}

TEST_F(MaintenanceRunsTest, InstallKeepsAConfigurationOfThisGeneration)
{
    m_store->setValue(SettingsKeys::Version, "6.1.0.3");
    write(m_config, "[General]\n");
    runs().install(false);
    EXPECT_TRUE(QFile::exists(m_config));
}

TEST_F(MaintenanceRunsTest, InstallRemovesTheUpdateTempFolderWhenThereIsOne)
{
    runs().install(false);
    EXPECT_FALSE(TestLog::infoLines().contains("[Install] remove " + m_update + " success"));
    write(m_update + "/deep/file", "x");
    runs().install(false);
    EXPECT_FALSE(QDir(m_update).exists());
    EXPECT_TRUE(TestLog::infoLines().contains("[Install] remove " + m_update + " success"));
}

TEST_F(MaintenanceRunsTest, InstallMovesTheFilesOfTheEarlierLayout)
{
    const QString old = m_data + "/" + kProduct + "/";
    write(old + "a.txt", "old a");
    write(old + "b.txt", "old b");
    write(m_data + "/b.txt", "new b");
    write(old + "regRecord/1.reg", "record");
    runs().install(false);
    EXPECT_EQ(read(m_data + "/a.txt"), "old a");
    EXPECT_EQ(read(m_data + "/b.txt"), "new b");
    EXPECT_EQ(read(m_data + "/regRecord/1.reg"), "record");
    EXPECT_FALSE(QDir(old).exists());
}

TEST_F(MaintenanceRunsTest, InstallLeavesAFolderThatIsNotEmptied)
{
    const QString old = m_data + "/" + kProduct + "/";
    write(old + "sub/keep.txt", "x");
    runs().install(false);
    EXPECT_TRUE(QFile::exists(old + "sub/keep.txt"));
}

TEST_F(MaintenanceRunsTest, UninstallRemovesTheAssociationsAndThenStopsTheServer)
{
    runs().uninstall();
    EXPECT_EQ(m_actions, QStringList({"associations", "autoplay off", "server"}));
    EXPECT_TRUE(QDir(m_data).exists());
}

TEST_F(MaintenanceRunsTest, FullUninstallAlsoRemovesTheDataFolder)
{
    write(m_data + "/deep/file", "x");
    runs().fullUninstall();
    EXPECT_FALSE(QDir(m_data).exists());
    EXPECT_TRUE(TestLog::infoLines().contains("[FullUninstall] remove " + m_data + " success"));
    EXPECT_EQ(m_actions, QStringList({"associations", "autoplay off", "server"}));
}

TEST_F(MaintenanceRunsTest, FullUninstallLeavesNothingThatPendingSettingsCouldBringBack)
{
    m_store = std::make_unique<SettingsManager>(m_config);
    m_store->setValue(SettingsKeys::Version, "6.1.0.3");
    runs().fullUninstall();
    m_store->setValue(SettingsKeys::Version, "6.1.0.3");
    m_store->sync();
    m_store->setFileAssociations({"mkv"});
    QCoreApplication::processEvents(); // QSettings writes by itself too
    EXPECT_FALSE(QDir(m_data).exists());
}

TEST_F(MaintenanceRunsTest, FullUninstallRemovesWhatCameBackMeanwhile)
{
    MaintenanceRuns({*m_store,
                     {m_data, m_config, m_update, kProduct},
                     {[](bool) {}, [] {}, [this] { write(m_data + "/mediaServer/library.db", "late"); }}})
        .fullUninstall();
    EXPECT_FALSE(QDir(m_data).exists());
}

TEST_F(MaintenanceRunsTest, FullUninstallWithoutADataFolderLogsNothingOfIt)
{
    QDir(m_data).removeRecursively();
    runs().fullUninstall();
    for (const QString &line : TestLog::infoLines())
        EXPECT_FALSE(line.startsWith("[FullUninstall]"));
}

} // namespace
