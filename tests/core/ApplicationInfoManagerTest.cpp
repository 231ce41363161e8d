#include "core/ApplicationInfoManager.h"

#include "ChildProcess.h"
#include "core/MarkerFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

ApplicationInfoManager *info()
{
    return ApplicationInfoManager::instance();
}

TEST(ApplicationInfoManagerTest, EveryPathLiesWhereItBelongsAndItsFolderIsMade)
{
    const QString home = QDir::homePath();
    const QString data = home + "/data/Quorin Player 6";
    const QString documents = home + "/Documents/Quorin Player 6";
    EXPECT_EQ(info()->dataFolder(), data);
    EXPECT_EQ(info()->configurationFile(), data + "/config.ini");
    EXPECT_EQ(info()->mediaServerFolder(), data + "/mediaServer");
    EXPECT_EQ(info()->audioDumpFile(), data + "/audio");
    EXPECT_EQ(info()->logFolder(), documents + "/Log");
    EXPECT_EQ(info()->logFile(), documents + "/Log/player.log");
    EXPECT_EQ(info()->tempFolder(), documents + "/Temp");
    EXPECT_EQ(info()->updateTempFolder(), documents + "/Temp/updateTemp");
    EXPECT_EQ(info()->updateConfigurationFile(), documents + "/Temp/updateTemp/update_config.xml");
    EXPECT_EQ(info()->posterTempFolder(), documents + "/Temp/posterTemp");
    EXPECT_EQ(info()->picturesFolder(), home + "/Pictures/Quorin Player 6");
    EXPECT_EQ(info()->applicationFolder(), QCoreApplication::applicationDirPath());
    EXPECT_EQ(info()->languageFolder(), QCoreApplication::applicationDirPath() + "/QLanguage");
    for (const QString &folder :
         {info()->dataFolder(), info()->mediaServerFolder(), info()->logFolder(), info()->tempFolder(),
          info()->updateTempFolder(), info()->posterTempFolder(), info()->picturesFolder()})
        EXPECT_TRUE(QDir(folder).exists()) << qPrintable(folder);
}

TEST(ApplicationInfoManagerTest, AFolderThatWasRemovedIsMadeAgain)
{
    ASSERT_TRUE(QDir(info()->posterTempFolder()).removeRecursively());
    EXPECT_TRUE(QDir(info()->posterTempFolder()).exists());
}

TEST(ApplicationInfoManagerTest, AFolderThatCanNotBeMadeIsNoFailure)
{
    const QString folder = info()->updateTempFolder();
    ASSERT_TRUE(QDir(folder).removeRecursively());
    QFile inTheWay(folder);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_EQ(info()->updateTempFolder(), folder);
    EXPECT_TRUE(inTheWay.remove());
}

TEST(ApplicationInfoManagerTest, TheDataFolderIsTheSameBeforeAndAfterTheApplicationObjectExists)
{
    ChildProcess child({"paths"});
    const QString before = child.line();
    EXPECT_EQ(before, info()->dataFolder());
    EXPECT_EQ(child.line(), before);
}

TEST(ApplicationInfoManagerTest, OnlyTheLastElementOfTheDataFolderIsReplaced)
{
    const QByteArray before = qgetenv("XDG_DATA_HOME");
    const QString name = QCoreApplication::applicationName();
    const QString above = QDir::homePath() + '/' + name + "/share";
    qputenv("XDG_DATA_HOME", above.toUtf8());
    EXPECT_EQ(info()->dataFolder(), above + "/Quorin Player 6");
    qputenv("XDG_DATA_HOME", before);
}

TEST(ApplicationInfoManagerTest, TheIdentityIsWhatTheEntryPointSays)
{
    info()->setProgramFileName("Quorin Player 6.exe");
    info()->setVersion("6.1.0.3");
    info()->setBuildDate(2020, 7, 15);
    info()->setChannel("Official");
    EXPECT_EQ(info()->version(), "6.1.0.3");
    EXPECT_EQ(info()->buildDate(), QDate(2020, 7, 15));
    EXPECT_EQ(info()->channel(), "Official");
    const QString file = QCoreApplication::applicationDirPath() + "/Quorin Player 6.exe";
    EXPECT_EQ(info()->programFile(), file);
    EXPECT_EQ(info()->openCommand(), '"' + file + "\" \"%1\"");
    EXPECT_EQ(info()->iconCommand(), '"' + file + "\",0");
    EXPECT_EQ(info()->classKeyRoot(), "SOFTWARE\\Classes\\");
    EXPECT_EQ(info()->productName(), "Quorin Player 6");
    EXPECT_EQ(info()->makerName(), "Quorin");
    EXPECT_EQ(info()->certificateFileName(), "kelcom.crt");
    EXPECT_EQ(info()->mediaServerHost(), "127.0.0.1");
    EXPECT_EQ(info()->updaterName(), "Update");
    EXPECT_EQ(info()->registryHelperName(), "KelRegOp");
    EXPECT_EQ(info()->hardwareCheckName(), "SupportCheck");
    EXPECT_EQ(info()->advertisementName(), "Advertisement");
}

TEST(ApplicationInfoManagerTest, TheScaleFollowsTheScreenInPcModeAndItsSourceInTvMode)
{
    EXPECT_FLOAT_EQ(info()->scaleFactor(), 1.0f) << "until a screen is known";
    info()->setScreenDpi(144);
    info()->setRunMode(ApplicationInfoManager::PcMode);
    EXPECT_FLOAT_EQ(info()->scaleFactor(), 1.5f);
    info()->setRunMode(ApplicationInfoManager::TvMode);
    EXPECT_FLOAT_EQ(info()->scaleFactor(), 1.5f) << "there is no source yet";
    info()->setTvScaleSource([] { return 2.25f; });
    EXPECT_FLOAT_EQ(info()->scaleFactor(), 2.25f);
    info()->setRunMode(ApplicationInfoManager::PcMode);
    EXPECT_FLOAT_EQ(info()->scaleFactor(), 1.5f);
    info()->setTvScaleSource({});
    info()->setScreenDpi(96);
    info()->setRunMode(0);
}

TEST(ApplicationInfoManagerTest, AMarkerInTheDataFolderTurnsADebugSwitchOn)
{
    MarkerFiles::instance()->setResolver({});
    EXPECT_FALSE(ApplicationInfoManager::debugHotKey());
    QFile marker(info()->dataFolder() + "/debugHotKey.txt");
    ASSERT_TRUE(marker.open(QIODevice::WriteOnly));
    EXPECT_FALSE(ApplicationInfoManager::debugHotKey()) << "a marker is looked for once";
    MarkerFiles::instance()->setResolver({});
    EXPECT_TRUE(ApplicationInfoManager::debugHotKey());
    EXPECT_FALSE(ApplicationInfoManager::debugFileAssociation());
    EXPECT_TRUE(marker.remove());
    MarkerFiles::instance()->setResolver({});
}

} // namespace
