// Pictures of real files through the player, by the scripted engine and by the real one.
#include "preview/PlayerPreviewSource.h"
#include "preview/PreviewFetcher.h"

#include "core/SettingsManager.h"
#include "play/TestClips.h"
#include "player/QPlayer.h"
#include "support/Eventually.h"
#include "support/FakeEngineLoader.h"

#include <QSignalSpy>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

class PlayerPreviewSourceTest : public testing::Test {
protected:
    PlayerPreviewSourceTest() { engine.reset(); }

    QTemporaryDir folder;
    SettingsManager settings{folder.filePath(QStringLiteral("config.ini"))};
    FakeEngine &engine{fakeEngine()};
};

class PreviewOfRealFiles : public PlayerPreviewSourceTest {
protected:
    void use(const std::string &clip) { fetcher.setSource(QString::fromStdString(TestClips::path(clip))); }
    // True when a picture came, false when it is known that there is none.
    bool fetch(int positionMs)
    {
        QSignalSpy ready(&fetcher, &PreviewFetcher::pictureReady);
        QSignalSpy missing(&fetcher, &PreviewFetcher::pictureMissing);
        fetcher.request(positionMs);
        EXPECT_TRUE(QTest::qWaitFor([&] { return ready.count() + missing.count() > 0; }, 20000));
        if (ready.isEmpty())
            return false;
        picture = ready.at(0).at(1).value<QImage>();
        return true;
    }

    QPlayer player{std::make_unique<LibraryEngineLoader>(QStringLiteral(QUORIN_ORBIX)), &settings};
    PreviewFetcher fetcher{std::make_shared<PlayerPreviewSource>(&player)};
    QImage picture;
};

} // namespace

TEST_F(PlayerPreviewSourceTest, OpensASessionOfTheStatedSizeAndClosesIt)
{
    QPlayer player(fakeEngineLoader(), &settings);
    engine.setPicture({1, 2, 3, 255, 4, 5, 6, 255}, 2, 1, libvp::VD_Picture_Rgba);
    PlayerPreviewSource source(&player);
    ASSERT_TRUE(source.open(QStringLiteral("/films/a.mkv")));
    EXPECT_THAT(
        engine.calls(),
        testing::Contains("IVDEngineCore::openThumbnailSession(/films/a.mkv, 0, -1, 324, 188, 0, 0, 0)"));
    EXPECT_NE(player.thumbnailHandle(), 0);
    const PreviewPicture picture = source.grab(90000);
    EXPECT_EQ(picture.image.size(), QSize(2, 1));
    EXPECT_GE(picture.shownMs, 0);
    EXPECT_THAT(engine.calls(), testing::Contains("IVDEngineCore::grabThumbnail(1, 90000, 0)"));
    source.close();
    EXPECT_EQ(player.thumbnailHandle(), 0);
    EXPECT_THAT(engine.calls(), testing::Contains("IVDEngineCore::closeThumbnailSession(1)"));
    EXPECT_TRUE(source.grab(0).image.isNull());
}

TEST_F(PlayerPreviewSourceTest, ASessionThatCannotBeOpenedIsNone)
{
    QPlayer player(fakeEngineLoader(), &settings);
    engine.answer("IVDEngineCore::openThumbnailSession", 0);
    PlayerPreviewSource source(&player);
    EXPECT_FALSE(source.open(QStringLiteral("/films/a.mkv")));
    EXPECT_TRUE(source.grab(0).image.isNull());
}

TEST_F(PlayerPreviewSourceTest, WithoutAnEngineThereAreNoPictures)
{
    QPlayer player(std::make_unique<LibraryEngineLoader>(QStringLiteral("/nowhere/engine")), &settings);
    PlayerPreviewSource source(&player);
    EXPECT_FALSE(source.open(QStringLiteral("/films/a.mkv")));
    EXPECT_TRUE(source.grab(0).image.isNull());
    source.close();
}

TEST_F(PreviewOfRealFiles, ShowsTheKeyFrameOfEachSecond)
{
    use("plain.mp4");
    QList<QImage> seen;
    for (int second = 0; second < 10; ++second) {
        ASSERT_TRUE(fetch(second * 1000 + 500)) << second;
        EXPECT_EQ(picture.size(), QSize(320, 180));
        EXPECT_FALSE(seen.contains(picture)) << second;
        seen.append(picture);
        // The same key frame stands for the whole second up to there, and is not read again.
        ASSERT_TRUE(fetch(second * 1000 + 100));
        EXPECT_EQ(picture, seen.last());
    }
}

TEST_F(PreviewOfRealFiles, AFileWithItsIndexMissingHasNone)
{
    use("truncated.mp4");
    EXPECT_FALSE(fetch(1000));
    EXPECT_FALSE(fetch(2000));
}

TEST_F(PreviewOfRealFiles, AnUnknownCodecHasNone)
{
    use("broken.avi");
    EXPECT_FALSE(fetch(0));
}

TEST_F(PreviewOfRealFiles, SoundAloneHasNoneAndACoverIsNoPicture)
{
    use("song.flac");
    EXPECT_FALSE(fetch(1000));
    use("cover.mp3");
    EXPECT_FALSE(fetch(1000));
}

TEST_F(PreviewOfRealFiles, AFileThatIsNotThereHasNone)
{
    fetcher.setSource(QStringLiteral("/nowhere/film.mkv"));
    EXPECT_FALSE(fetch(1000));
}

TEST_F(PreviewOfRealFiles, NoiseInsteadOfAFilmHasNone)
{
    QByteArray noise(200000, Qt::Uninitialized);
    quint32 value = 1;
    for (char &byte : noise) {
        value = value * 1664525U + 1013904223U;
        byte = char(value >> 24);
    }
    const std::string path = TestClips::scratchFolder() + "/noise.mkv";
    TestClips::write(path, noise.toStdString());
    fetcher.setSource(QString::fromStdString(path));
    EXPECT_FALSE(fetch(1000));
}

TEST_F(PreviewOfRealFiles, OneBrokenFileDoesNotSpoilTheNext)
{
    use("broken.avi");
    EXPECT_FALSE(fetch(0));
    use("long.mp4");
    EXPECT_TRUE(fetch(35000));
    use("interlaced.mpg");
    EXPECT_TRUE(fetch(1000));
}
