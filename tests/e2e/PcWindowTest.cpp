#include "PcWindow.h"
#include "Eventually.h"
#include "Mpris.h"
#include "ProgramRun.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "transport/SeekTrack.h"
#include "transport/TransportLayout.h"

#include <QDebug>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImage>

#include <gtest/gtest.h>

#include <memory>

namespace {

const QString kTitle = QStringLiteral("Quorin Player 6");
const QString kClosed = QStringLiteral("********************** Quorin6 Closed **********************");
constexpr QRgb kBlue = qRgb(0x20, 0x60, 0xc0);
constexpr QRgb kGreen = qRgb(0x20, 0xa0, 0x40);
constexpr int kColorTolerance = 12;
constexpr int kEpisodeSeconds = 60;
// Of the card that offers the next episode.
constexpr QSize kEpisodeNoteSmallest{400, 110};
constexpr QSize kEpisodeNoteLargest{440, 200};
constexpr int kEndMs = 2000;
constexpr int kFilmSeconds = 200;
// A keyframe a second, so a seek may end that far from where it was asked for, and the session tells whole
// seconds.
constexpr double kSeekTolerance = 2.5;

// One run of the program with a film of 200 seconds in three chapters.
class PcWindowTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_FALSE(qEnvironmentVariableIsEmpty("DISPLAY")) << "run under scripts/with-display";
        m_film = Clips::withChapters(QStringLiteral("long film.mkv"), kBlue, {0, 80, 140}, kFilmSeconds);
        ASSERT_FALSE(m_film.isEmpty());
        QDir().mkpath(m_home.filePath("shots"));
        m_home.writeSetting(QLatin1String(SettingsKeys::PC_SnapShotPath), m_home.filePath("shots"));
    }

    void TearDown() override
    {
        if (HasFailure())
            std::printf("%s\n", qPrintable(m_home.log().right(3000)));
    }

    // Starts the program with the film, or without.
    void start(const QStringList &arguments)
    {
        m_run = std::make_unique<ProgramRun>(m_home, arguments);
        m_window = std::make_unique<PcWindow>(m_run->id());
        ASSERT_TRUE(m_session.waitForSession());
    }

    void startPlaying()
    {
        start({m_film});
        ASSERT_TRUE(waitForFilm());
    }

    bool waitForFilm()
    {
        return m_window->waitForTitle("long film.mkv - " + kTitle) && m_home.waitForLog("OnPlayBackStarted")
               && eventually([this] {
                      return m_session.status() == "Playing" && m_session.lengthSeconds() > kFilmSeconds - 1;
                  });
    }

    // Brings the bar and tells where it is.
    QRect shownBar()
    {
        m_window->moveTo(m_window->rect().center());
        EXPECT_TRUE(eventually([this] { return !m_window->bar().isNull(); })) << "no bar; " << seen();
        return m_window->bar();
    }

    // The point of the seek slider for a part of the film.
    QPoint onTrack(const QRect &bar, double part) const
    {
        const TransportLayout layout = layoutOf(bar);
        const SeekTrack track{QRect(QPoint(), layout.progress().size()), 1.0, kFilmSeconds, {}};
        const QRectF groove = track.groove();
        return bar.topLeft() + layout.progress().topLeft()
               + QPointF(groove.left() + part * groove.width(), groove.center().y()).toPoint();
    }

    QPoint onButton(const QRect &bar, TransportPlace place) const
    {
        return bar.topLeft() + layoutOf(bar).place(place).center();
    }

    bool waitForSeconds(double seconds, double tolerance = kSeekTolerance)
    {
        return eventually([&] { return qAbs(m_session.seconds() - seconds) <= tolerance; });
    }

    // For a failure's message: where the window is and what hovers over it.
    std::string seen() const
    {
        QString text;
        QDebug line(&text);
        line << m_window->rect() << m_window->overlays();
        return text.toStdString();
    }

    // A film of a colour, beside the others.
    QString file(const QString &name, QRgb color) const
    {
        const QString path = m_home.filePath(name);
        EXPECT_TRUE(QFile::copy(Clips::ofColor(QStringLiteral("episode.mkv"), color, kEpisodeSeconds), path));
        return path;
    }

    QPoint middle() const { return m_window->rect().center(); }

    ProgramHome m_home;
    Mpris m_session;
    QString m_film;
    std::unique_ptr<ProgramRun> m_run;
    std::unique_ptr<PcWindow> m_window;

private:
    // With a compositor the bar is a shade, without one a panel.
    static TransportLayout layoutOf(const QRect &bar)
    {
        constexpr int TimeWidth = 150;
        const bool compact = qEnvironmentVariableIsEmpty("QUORIN_COMPOSITOR");
        TransportLayout::PlaceSet absent;
        absent.set(std::size_t(TransportPlace::MusicPixmap));
        return TransportLayout::arranged(bar.size(), 1.0, compact, TimeWidth, absent);
    }
};

TEST_F(PcWindowTest, AFileIsOpenedThroughTheDialogAndPausedByKey)
{
    // The dialog completes what is typed as its folders are read: of a name alone there is nothing to guess.
    const QFileInfo film(m_film);
    m_home.writeSetting(QLatin1String(SettingsKeys::PC_AddLastFolder), film.absolutePath());
    ASSERT_NO_FATAL_FAILURE(start({}));
    ASSERT_TRUE(m_window->waitForTitle(kTitle));
    EXPECT_EQ(m_session.status(), "Stopped");
    m_window->key("ctrl+o");
    const qulonglong dialog = Desktop::waitForWindow(m_run->id(), "Open Media.*");
    ASSERT_NE(dialog, 0U);
    ASSERT_TRUE(eventually([&] { return Desktop::activeWindow() == dialog; }))
        << "the dialog has no keyboard";
    m_window->type(film.fileName());
    Desktop::sendKey(dialog, "Return");
    ASSERT_TRUE(waitForFilm());
    EXPECT_TRUE(Desktop::waitForMiddleColor(kBlue, kColorTolerance));
    m_window->key("space");
    EXPECT_TRUE(eventually([this] { return m_session.status() == "Paused"; }));
    m_window->key("space");
    EXPECT_TRUE(eventually([this] { return m_session.status() == "Playing"; }));
}

TEST_F(PcWindowTest, TheSeekSliderIsClickedAndDragged)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    const QRect bar = shownBar();
    ASSERT_FALSE(bar.isNull());
    m_window->click(onTrack(bar, 0.6));
    EXPECT_TRUE(waitForSeconds(0.6 * kFilmSeconds)) << m_session.seconds();
    m_window->drag(onTrack(bar, 0.6), onTrack(bar, 0.2));
    EXPECT_TRUE(waitForSeconds(0.2 * kFilmSeconds)) << m_session.seconds();
    EXPECT_EQ(m_session.status(), "Playing");
    // The play button of the bar, with the mouse.
    m_window->click(onButton(shownBar(), TransportPlace::PlayPause));
    EXPECT_TRUE(eventually([this] { return m_session.status() == "Paused"; }));
}

TEST_F(PcWindowTest, KeysAndWheelMoveTheVolume)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    const double first = m_session.volume();
    const auto isVolume = [this](double wanted) {
        return eventually([&] { return qAbs(m_session.volume() - wanted) < 0.005; });
    };
    m_window->key("minus");
    EXPECT_TRUE(isVolume(first - 0.01)) << first << ' ' << m_session.volume();
    m_window->key("minus");
    EXPECT_TRUE(isVolume(first - 0.02)) << m_session.volume();
    m_window->key("equal");
    EXPECT_TRUE(isVolume(first - 0.01)) << m_session.volume();
    m_window->wheel(middle(), false);
    EXPECT_TRUE(eventually([&] { return m_session.volume() < first - 0.015; })) << m_session.volume();
    const double lower = m_session.volume();
    m_window->wheel(middle(), true);
    EXPECT_TRUE(eventually([&] { return m_session.volume() > lower + 0.005; })) << m_session.volume();
}

TEST_F(PcWindowTest, TheSpeedGoesUpAndItsNoteTakesItBack)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    m_window->key("f");
    EXPECT_TRUE(eventually([this] { return m_session.rate() > 1.01; })) << m_session.rate();
    // The note stands under the title; its button closes it from its right end.
    QRect note;
    ASSERT_TRUE(eventually([&] {
        note = m_window->overlay({40, 20}, {320, 60});
        return !note.isNull() && note.left() < middle().x();
    }));
    m_window->click(QPoint(note.right() - note.height() / 2, note.center().y()));
    EXPECT_TRUE(eventually([this] { return qAbs(m_session.rate() - 1.0) < 0.01; })) << m_session.rate();
}

TEST_F(PcWindowTest, ChaptersAreSteppedByKeyAndByButton)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    m_window->key("Next");
    EXPECT_TRUE(waitForSeconds(80)) << m_session.seconds();
    m_window->click(onButton(shownBar(), TransportPlace::NextChapter));
    EXPECT_TRUE(waitForSeconds(140)) << m_session.seconds();
    m_window->key("Prior");
    EXPECT_TRUE(eventually([this] { return m_session.seconds() < 135; })) << m_session.seconds();
}

TEST_F(PcWindowTest, FullScreenByKeyAndByDoubleClickReturnsToTheSameWindow)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    ASSERT_TRUE(Desktop::waitForMiddleColor(kBlue, kColorTolerance));
    const QRect before = m_window->rect();
    const QSize screen = Desktop::screenSize();
    const auto fillsScreen = [&] { return m_window->rect().size() == screen && m_session.isFullScreen(); };
    const auto isAsBefore = [&] { return m_window->rect() == before && !m_session.isFullScreen(); };
    m_window->key("F11");
    EXPECT_TRUE(eventually(fillsScreen));
    EXPECT_TRUE(Desktop::waitForMiddleColor(kBlue, kColorTolerance));
    m_window->key("F11");
    EXPECT_TRUE(eventually(isAsBefore)) << m_window->rect().width() << 'x' << m_window->rect().height();
    m_window->doubleClick(middle());
    EXPECT_TRUE(eventually(fillsScreen));
    m_window->key("Escape");
    EXPECT_TRUE(eventually(isAsBefore)) << m_window->rect().width() << 'x' << m_window->rect().height();
    EXPECT_EQ(m_session.status(), "Playing");
}

TEST_F(PcWindowTest, BarAndPointerGoThreeSecondsAfterTheLastMove)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    m_window->key("F11");
    ASSERT_TRUE(eventually([this] { return m_session.isFullScreen(); }));
    QElapsedTimer clock;
    ASSERT_FALSE(shownBar().isNull());
    m_window->moveTo(middle());
    clock.start();
    EXPECT_TRUE(m_window->isPointerShown());
    EXPECT_TRUE(eventually([this] { return !m_window->isPointerShown(); }));
    EXPECT_GE(clock.elapsed(), 2500);
    EXPECT_LE(clock.elapsed(), 4500);
    EXPECT_TRUE(eventually([this] { return m_window->overlays().isEmpty(); }, 1500));
    m_window->moveTo(middle() + QPoint(40, 40));
    EXPECT_TRUE(eventually([this] { return !m_window->bar().isNull() && m_window->isPointerShown(); }, 1000));
}

TEST_F(PcWindowTest, TheMenuOfTheRightButtonActs)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    m_window->rightClick(middle());
    // From below: the settings, then the information.
    m_window->key("Up");
    m_window->key("Up");
    m_window->key("Return");
    EXPECT_TRUE(eventually([this] {
        return !m_window->overlay({180, 100}, {560, 300}).isNull();
    })) << "no information; "
        << seen();
    EXPECT_TRUE(eventually(
        [this] { return m_home.readSetting(QLatin1String(SettingsKeys::PC_ShowMeta)) == "true"; }));
}

TEST_F(PcWindowTest, ThePlaylistOpensFromTheBarAndGoesOnAtTheEndOfASource)
{
    const QString first = file("first film.mkv", kBlue);
    const QString second = file("second film.mkv", kGreen);
    {
        SettingsManager store(m_home.configurationFile());
        store.setValue(QLatin1String(SettingsKeys::PC_Playlist), QVariantMap{{first, {}}, {second, {}}});
        store.setValue(QLatin1String(SettingsKeys::PC_PlaylistLoopType), 1);
        store.sync();
    }
    start({first});
    ASSERT_TRUE(m_window->waitForTitle("first film.mkv - " + kTitle));
    ASSERT_TRUE(eventually([this] { return m_session.lengthSeconds() > kEpisodeSeconds - 1; }));
    const auto panel = [this] { return m_window->overlay({280, 300}, {480, 700}); };
    EXPECT_TRUE(panel().isNull());
    m_window->click(onButton(shownBar(), TransportPlace::Playlist));
    EXPECT_TRUE(eventually([&] { return !panel().isNull(); })) << seen();
    m_window->click(onButton(shownBar(), TransportPlace::Playlist));
    EXPECT_TRUE(eventually([&] { return panel().isNull(); })) << seen();

    m_session.goTo(kEpisodeSeconds - 3);
    ASSERT_TRUE(m_window->waitForTitle("second film.mkv - " + kTitle));
    EXPECT_TRUE(Desktop::waitForMiddleColor(kGreen, kColorTolerance));
}

TEST_F(PcWindowTest, TheStripOfPicturesIsWalkedByKeysAndJumps)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    m_session.goTo(100);
    ASSERT_TRUE(waitForSeconds(100));
    m_window->key("F6");
    const auto strip = [this] { return m_window->overlay({500, 150}, {1100, 320}); };
    ASSERT_TRUE(eventually([&] { return !strip().isNull(); })) << seen();
    // As soon as the first picture is there.
    EXPECT_TRUE(eventually([this] {
        m_window->key("Home");
        m_window->key("Return");
        return m_session.seconds() < 20;
    })) << m_session.seconds();
    m_window->key("Escape");
    EXPECT_TRUE(eventually([&] { return strip().isNull(); })) << seen();
}

TEST_F(PcWindowTest, TheSettingsOpenByKeyAndAreStoredAtOk)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    const auto isOpen = [this] { return Desktop::visibleWindows(m_run->id(), "Settings") > 0; };
    ASSERT_FALSE(isOpen());
    m_window->key("F5");
    ASSERT_TRUE(eventually(isOpen));
    Desktop::sendKey(Desktop::activeWindow(), "Return");
    EXPECT_TRUE(eventually([&] { return !isOpen(); }));
    EXPECT_TRUE(eventually(
        [this] { return !m_home.readSetting(QLatin1String(SettingsKeys::PC_SnapShotType)).isEmpty(); }));
    EXPECT_EQ(m_session.status(), "Playing");
}

TEST_F(PcWindowTest, ThePictureOfTheMomentGoesIntoTheConfiguredFolder)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    ASSERT_TRUE(Desktop::waitForMiddleColor(kBlue, kColorTolerance));
    m_window->key("s");
    ASSERT_TRUE(m_home.waitForLog("[Screenshot] saved:"));
    const QFileInfoList files = QDir(m_home.filePath("shots")).entryInfoList(QDir::Files);
    ASSERT_EQ(files.size(), 1);
    EXPECT_TRUE(m_home.log().contains(files.first().filePath()));
    const QImage picture(files.first().filePath());
    ASSERT_EQ(picture.size(), QSize(640, 360));
    const QColor seen(picture.pixel(320, 180));
    EXPECT_NEAR(seen.red(), qRed(kBlue), kColorTolerance);
    EXPECT_NEAR(seen.green(), qGreen(kBlue), kColorTolerance);
    EXPECT_NEAR(seen.blue(), qBlue(kBlue), kColorTolerance);
}

TEST_F(PcWindowTest, AfterAStopTheNoteBringsThePositionBack)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    const QString input = m_run->descriptor(0);
    m_session.goTo(100);
    ASSERT_TRUE(waitForSeconds(100)) << m_session.seconds();
    m_window->click(onButton(shownBar(), TransportPlace::Stop));
    ASSERT_TRUE(m_home.waitForLog("OnPlayBackStopped"));
    ASSERT_TRUE(m_window->waitForTitle(kTitle));
    EXPECT_TRUE(eventually([this] {
        return m_session.status() == "Stopped" && m_window->overlays().isEmpty();
    })) << qPrintable(m_session.status())
        << seen();

    m_session.openUri(m_film);
    ASSERT_TRUE(m_home.waitForLog("OnPlayBackStarted", 2));
    ASSERT_TRUE(m_window->waitForTitle("long film.mkv - " + kTitle));
    EXPECT_LT(m_session.seconds(), 20);
    // A card at the lower left, above the bar.
    QRect note;
    ASSERT_TRUE(eventually([&] {
        note = m_window->overlay({200, 70}, {600, 220});
        return !note.isNull();
    })) << "no note of the last position";
    m_window->click(note.center());
    EXPECT_TRUE(waitForSeconds(100, 4)) << m_session.seconds();
    EXPECT_TRUE(eventually([&] { return m_window->overlay({200, 70}, {600, 220}).isNull(); }));
    // Two plays and a stop have closed nothing that is not theirs.
    EXPECT_EQ(m_run->descriptor(0), input);
    EXPECT_EQ(m_session.status(), "Playing");
}

TEST_F(PcWindowTest, TheNextEpisodeIsOfferedInTheLastHalfMinuteAndPlaysAtAClick)
{
    const QString first = file("road S01E01.mkv", kBlue);
    file("road S01E02.mkv", kGreen);
    start({first});
    ASSERT_TRUE(m_window->waitForTitle("road S01E01.mkv - " + kTitle));
    ASSERT_TRUE(eventually([this] { return m_session.lengthSeconds() > kEpisodeSeconds - 1; }));
    EXPECT_TRUE(m_window->overlay(kEpisodeNoteSmallest, kEpisodeNoteLargest).isNull());
    m_session.goTo(kEpisodeSeconds - 25);
    QRect note;
    ASSERT_TRUE(eventually([&] {
        note = m_window->overlay(kEpisodeNoteSmallest, kEpisodeNoteLargest);
        return !note.isNull();
    })) << "no note of the next episode; "
        << seen();
    EXPECT_GT(note.center().x(), middle().x());
    // "Play Now", at the lower left of the card.
    m_window->click(note.bottomLeft() + QPoint(50, -28));
    ASSERT_TRUE(m_window->waitForTitle("road S01E02.mkv - " + kTitle));
    EXPECT_TRUE(Desktop::waitForMiddleColor(kGreen, kColorTolerance));
    EXPECT_TRUE(
        eventually([&] { return m_window->overlay(kEpisodeNoteSmallest, kEpisodeNoteLargest).isNull(); }));
}

TEST_F(PcWindowTest, TheNextEpisodePlaysByItselfAtTheEnd)
{
    const QString first = file("road S01E01.mkv", kBlue);
    file("road S01E02.mkv", kGreen);
    start({first});
    ASSERT_TRUE(m_window->waitForTitle("road S01E01.mkv - " + kTitle));
    ASSERT_TRUE(eventually([this] { return m_session.lengthSeconds() > kEpisodeSeconds - 1; }));
    m_session.goTo(kEpisodeSeconds - 3);
    ASSERT_TRUE(m_window->waitForTitle("road S01E02.mkv - " + kTitle));
    EXPECT_TRUE(Desktop::waitForMiddleColor(kGreen, kColorTolerance));
    // None follows the last one.
    ASSERT_TRUE(eventually([this] { return m_session.lengthSeconds() > kEpisodeSeconds - 1; }));
    m_session.goTo(kEpisodeSeconds - 3);
    EXPECT_TRUE(m_window->waitForTitle(kTitle));
}

TEST_F(PcWindowTest, AMissingFileIsToldInADialogThatEnterCloses)
{
    ASSERT_NO_FATAL_FAILURE(start({m_home.filePath("no such film.mkv")}));
    ASSERT_TRUE(m_home.waitForLog("[Player fail]: "));
    QRect box;
    ASSERT_TRUE(eventually([&] {
        return Desktop::visibleWindows(m_run->id(), kTitle + "|.* - " + kTitle) >= 2;
    })) << "no dialog";
    const qulonglong dialog = Desktop::activeWindow();
    Desktop::sendKey(dialog, "Return");
    ASSERT_TRUE(m_window->waitForTitle(kTitle));
    EXPECT_TRUE(eventually([&] { return Desktop::visibleWindows(m_run->id(), kTitle) == 1; }));
    EXPECT_TRUE(m_run->isRunning());
    EXPECT_EQ(m_session.status(), "Stopped");
}

TEST_F(PcWindowTest, TheCloseButtonEndsItInTimeWhileItPlays)
{
    ASSERT_NO_FATAL_FAILURE(startPlaying());
    ASSERT_FALSE(shownBar().isNull());
    // The last button of the title bar.
    m_window->click(m_window->rect().topRight() + QPoint(-24, 22));
    EXPECT_EQ(m_run->waitForEnd(kEndMs), 0);
    EXPECT_TRUE(m_home.log().contains(kClosed));
    EXPECT_EQ(m_home.processes(), QList<qint64>());
}

} // namespace
