// Pictures, discs and backups.
#include "PlayerFixture.h"

#include <QBuffer>

#include <thread>

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using QPlayerSources = PlayerTest;

} // namespace

TEST_F(QPlayerSources, AThumbnailSessionKeepsItsHandleAndClosesTheOneBefore)
{
    engine.clearCalls();
    engine.answer("IVDEngineCore::openThumbnailSession", 5);
    EXPECT_EQ(player->openThumbnails(QStringLiteral("/a.mkv"), 0, -1, 324, 188), 5);
    EXPECT_EQ(player->thumbnailHandle(), 5);
    engine.answer("IVDEngineCore::openThumbnailSession", 6);
    EXPECT_EQ(player->openThumbnails(QStringLiteral("/b.mkv"), 0, -1, 324, 188), 6);
    player->closeThumbnails();
    player->closeThumbnails();
    EXPECT_EQ(player->thumbnailHandle(), 0);
    EXPECT_THAT(takeCalls(),
                ElementsAre("IVDEngineCore::openThumbnailSession(/a.mkv, 0, -1, 324, 188, 0, 0, 0)",
                            "IVDEngineCore::closeThumbnailSession(5)",
                            "IVDEngineCore::openThumbnailSession(/b.mkv, 0, -1, 324, 188, 0, 0, 0)",
                            "IVDEngineCore::closeThumbnailSession(6)"));
}

TEST_F(QPlayerSources, AThumbnailSessionClosedWhileItOpensDoesNotStay)
{
    engine.hold("IVDEngineCore::openThumbnailSession");
    engine.answer("IVDEngineCore::openThumbnailSession", 8);
    int handle = -1;
    std::thread opener([&] { handle = player->openThumbnails(QStringLiteral("/slow"), 0, -1, 10, 10); });
    ASSERT_TRUE(engine.waitHeld("IVDEngineCore::openThumbnailSession"));
    player->closeThumbnails();
    engine.release("IVDEngineCore::openThumbnailSession");
    opener.join();
    EXPECT_EQ(handle, 0);
    EXPECT_EQ(player->thumbnailHandle(), 0);
    EXPECT_THAT(takeCalls(), Contains("IVDEngineCore::closeThumbnailSession(8)"));
}

TEST_F(QPlayerSources, AThumbnailIsACopyOfTheEnginesPixels)
{
    engine.setPicture({1, 2, 3, 255, 4, 5, 6, 255}, 2, 1, libvp::VD_Picture_Rgba);
    ASSERT_EQ(player->openThumbnails(QStringLiteral("/a.mkv"), 0, -1, 10, 10), 1);
    const QImage image = player->grabThumbnail(90000, true);
    EXPECT_EQ(image.size(), QSize(2, 1));
    EXPECT_EQ(image.pixelColor(1, 0), QColor(4, 5, 6));
    const auto calls = takeCalls();
    EXPECT_THAT(calls, Contains("IVDEngineCore::grabThumbnail(1, 90000, 1)"));
    EXPECT_EQ(calls.back(), "IVDEngineCore::releasePicture()");
}

TEST_F(QPlayerSources, AThumbnailSmallerThanItSaysIsRefused)
{
    engine.setPicture({1, 2, 3, 255}, 200, 100, libvp::VD_Picture_Rgba);
    ASSERT_EQ(player->openThumbnails(QStringLiteral("/a.mkv"), 0, -1, 10, 10), 1);
    EXPECT_TRUE(player->grabThumbnail(0).isNull());
    EXPECT_EQ(takeCalls().back(), "IVDEngineCore::releasePicture()");
}

TEST_F(QPlayerSources, WithoutASessionThereIsNoThumbnail)
{
    engine.clearCalls();
    EXPECT_TRUE(player->grabThumbnail(0).isNull());
    EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(QPlayerSources, APictureOfASourceComesWithItsFormat)
{
    engine.setPicture({0xFF, 0xD8, 0xFF}, 320, 240, libvp::VD_Picture_Jpeg);
    const PlayerPicture picture = player->grabPicture("{\"url\":\"/a\",\"width\": 320}");
    EXPECT_EQ(picture.data, QByteArray("\xFF\xD8\xFF"));
    EXPECT_EQ(picture.width, 320);
    EXPECT_EQ(picture.height, 240);
    EXPECT_EQ(picture.format, libvp::VD_Picture_Jpeg);
    EXPECT_THAT(takeCalls(), Contains("IVDEngineCore::grabPicture({\"url\":\"/a\",\"width\": 320})"));
}

TEST_F(QPlayerSources, AMissingPictureHasANegativeFormat)
{
    EXPECT_EQ(player->grabPicture("{}").format, -1);
    engine.setPicture({1}, 1, 1, -1);
    EXPECT_EQ(player->grabPicture("{}").format, -1);
    EXPECT_TRUE(player->grabPicture("{}").data.isEmpty());
}

TEST_F(QPlayerSources, ADiscGivesItsTitlesHoweverMany)
{
    std::vector<libvp::VDDiscTitle> titles(300);
    for (int number = 0; number < 300; ++number)
        titles[static_cast<std::size_t>(number)].number = number;
    titles[299].durationMs = 60000;
    qstrcpy(titles[299].name, "Extra");
    engine.setDiscTitles(titles, 7);
    const PlayerDisc disc = player->prepareDisc(QStringLiteral("/disc.iso"), 0);
    EXPECT_TRUE(disc.isValid);
    ASSERT_EQ(disc.titles.size(), 300);
    EXPECT_EQ(disc.titles[299].number, 299);
    EXPECT_EQ(disc.titles[299].durationMs, 60000);
    EXPECT_EQ(disc.titles[299].name, QStringLiteral("Extra"));
    EXPECT_EQ(disc.mainTitle, 7);
}

TEST_F(QPlayerSources, WhatIsNoDiscHasNoTitles)
{
    const PlayerDisc disc = player->prepareDisc(QStringLiteral("/a.mkv"), 0);
    EXPECT_FALSE(disc.isValid);
    EXPECT_TRUE(disc.titles.isEmpty());
}

TEST_F(QPlayerSources, DiscInfoIsCopied)
{
    libvp::VDDiscDisplayInfo info;
    info.discType = libvp::VD_DiscType_BluRay;
    info.hasMedia = 1;
    info.sizeBytes = 50000000000;
    qstrcpy(info.volumeName, "FILM");
    engine.setDiscInfo(info);
    const PlayerDiscInfo answer = player->discDisplayInfo(QStringLiteral("D"));
    EXPECT_TRUE(answer.isValid);
    EXPECT_EQ(answer.discType, libvp::VD_DiscType_BluRay);
    EXPECT_TRUE(answer.hasMedia);
    EXPECT_EQ(answer.sizeBytes, 50000000000);
    EXPECT_EQ(answer.volumeName, QStringLiteral("FILM"));
    engine.answer("IVDPlayTool::discDisplayInfo", 0);
    EXPECT_FALSE(player->discDisplayInfo(QStringLiteral("E")).isValid);
}

TEST_F(QPlayerSources, DrivesAreToldAndAsked)
{
    player->setDriveResolver([](QChar) { return QStringLiteral("/discs/folder"); });
    engine.answer("IVDPlayTool::discState", 2);
    EXPECT_EQ(player->discState('D'), 2);
    EXPECT_TRUE(player->eject('D'));
    engine.answer("IVDEngineCore::sourceForm", libvp::VD_Source_DiscDvd);
    EXPECT_EQ(player->sourceForm(QStringLiteral("D")), libvp::VD_Source_DiscDvd);
    const auto calls = takeCalls();
    EXPECT_THAT(calls, Contains("IVDPlayTool::setStringProperty(disc.drive.D, /discs/folder)"));
    EXPECT_THAT(calls, Contains("IVDPlayTool::eject(D)"));
}

TEST_F(QPlayerSources, ABackupGoesThroughItsStates)
{
    engine.clearCalls();
    EXPECT_TRUE(player->startBackup(QStringLiteral("D"), QString::fromUtf8("/b/\xC3\xA4.iso")));
    EXPECT_THAT(takeCalls(), Contains("IVDEngineCore::startBackup(D, /b/\xC3\xA4.iso, 0)"));
    EXPECT_EQ(player->backupProgress(QStringLiteral("D")), -1);
    engine.answer("IVDEngineCore::backupProgress", 0.5);
    EXPECT_EQ(player->backupProgress(QStringLiteral("D")), 0.5);
    EXPECT_FALSE(player->isBackupFinished(QStringLiteral("D")));
    engine.answer("IVDEngineCore::isBackupFinished", 1);
    EXPECT_TRUE(player->isBackupFinished(QStringLiteral("D")));
    engine.answer("IVDEngineCore::isBackupFailed", 1);
    EXPECT_TRUE(player->isBackupFailed(QStringLiteral("D")));
    player->stopBackup(QStringLiteral("D"));
    EXPECT_THAT(takeCalls(), Contains("IVDEngineCore::stopBackup(D)"));
    engine.answer("IVDEngineCore::startBackup", 0);
    EXPECT_FALSE(player->startBackup(QStringLiteral("D"), QStringLiteral("/b")));
}
