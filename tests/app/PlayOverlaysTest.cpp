#include "overlays/PlayOverlays.h"

#include "WindowFixture.h"

#include "core/SettingsKeys.h"
#include "dialogs/NormalMessageBox.h"
#include "overlays/NormalLastPositionLabel.h"
#include "overlays/NormalMetaView.h"
#include "overlays/NormalTitleBar.h"
#include "overlays/NormalTopBar.h"
#include "pc/NormalAudioView.h"
#include "pc/NormalMainWindow.h"
#include "pc/NormalPlayControl.h"
#include "pc/PcMediaSession.h"
#include "start/NormalStartView.h"
#include "transport/NormalOperateBar.h"
#include "transport/NormalPlaySpeedBar.h"
#include "ui/AnimateMenu.h"

#include <QApplication>
#include <QCursor>
#include <QPushButton>
#include <QStackedWidget>

namespace {

constexpr int Patience = 10000;

class PlayOverlaysTest : public WindowFixture {
protected:
    PlayOverlaysTest()
    {
        for (const char *key : {"PC_RememberPosition", "PC_ShowMeta", "PC_PlayStateTip"})
            SettingsManager::instance()->remove(QLatin1String(key));
        QCursor::setPos(0, 0);
        m_window = std::make_unique<NormalMainWindow>(nullptr, true);
        m_window->move(100, 100);
        m_control = m_window->playControl();
        m_overlays = m_window->overlays();
    }
    void play(const QString &path)
    {
        m_window->slot_playSource(path);
        ASSERT_TRUE(QTest::qWaitFor([] { return openCount() > 0; }, Patience));
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return !m_control->isOpening() && !m_overlays->bar()->isIdle(); }, Patience));
    }
    // Plays something that was left at a position, up to the moment when it may be offered.
    void playWithPosition(int seconds)
    {
        const QString film = makeFile("film.mkv");
        SettingsManager::instance()->setLastPosition(film, seconds);
        play(film);
    }
    [[nodiscard]] bool isNoteOpenAfterItsTime()
    {
        // The tracks are put back at the same moment as the note is shown.
        EXPECT_TRUE(QTest::qWaitFor([this] { return !m_control->isResumePending(); }, Patience));
        return m_overlays->lastPosition()->isOpen();
    }

    std::unique_ptr<NormalMainWindow> m_window;
    NormalPlayControl *m_control{nullptr};
    PlayOverlays *m_overlays{nullptr};
};

TEST_F(PlayOverlaysTest, NothingHoversOverTheStartView)
{
    m_window->SLOT_haveMouseMove();
    EXPECT_FALSE(m_overlays->bar()->isVisible());
    EXPECT_FALSE(m_overlays->topBar()->isVisible());
    EXPECT_TRUE(m_window->findChild<NormalTitleBar *>()->isVisible());
}

TEST_F(PlayOverlaysTest, TheBarComesWithTheSourceAndGoesWhenTheMouseRests)
{
    play(makeFile("film.mkv"));
    EXPECT_TRUE(m_overlays->isAwake());
    EXPECT_EQ(m_overlays->topBar()->titleBar()->text(), "film.mkv");
    m_window->SLOT_mouseMoveStop();
    EXPECT_FALSE(m_overlays->isAwake());
    EXPECT_EQ(m_window->cursor().shape(), Qt::BlankCursor);
    m_window->SLOT_haveMouseMove();
    EXPECT_TRUE(m_overlays->isAwake());
    EXPECT_EQ(m_window->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(PlayOverlaysTest, TheBarStaysWhileThePointerIsOnIt)
{
    play(makeFile("film.mkv"));
    NormalOperateBar *bar = m_overlays->bar();
    ASSERT_TRUE(QTest::qWaitFor([bar] { return bar->isVisible(); }, Patience));
    QCursor::setPos(bar->mapToGlobal(QPoint(bar->width() / 2, bar->height() - 20)));
    m_window->SLOT_mouseMoveStop();
    EXPECT_TRUE(m_overlays->isAwake());
    QCursor::setPos(m_window->geometry().center());
    m_window->SLOT_mouseMoveStop();
    EXPECT_FALSE(m_overlays->isAwake());
}

TEST_F(PlayOverlaysTest, TheBarsRestByThemselvesAfterAKey)
{
    play(makeFile("film.mkv"));
    m_window->SLOT_mouseMoveStop();
    ASSERT_FALSE(m_overlays->isAwake());
    QTest::keyClick(m_window.get(), Qt::Key_Tab);
    EXPECT_TRUE(m_overlays->isAwake());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_overlays->isAwake(); }, Patience));
}

TEST_F(PlayOverlaysTest, TheBarStaysOverMusic)
{
    fakeEngine().setStatistic(libvp::VD_Stat_AudioOnly, 1);
    play(makeFile("song.flac"));
    auto *audio = m_window->findChild<NormalAudioView *>();
    ASSERT_TRUE(QTest::qWaitFor([audio] { return audio->isVisible(); }, Patience));
    EXPECT_EQ(audio->name(), "song.flac");
    m_window->SLOT_mouseMoveStop();
    EXPECT_TRUE(m_overlays->isAwake());
}

TEST_F(PlayOverlaysTest, AllOfThemGoWithTheSource)
{
    SettingsManager::instance()->setValue(SettingsKeys::PC_ShowMeta, true);
    play(makeFile("film.mkv"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_overlays->bar()->isVisible(); }, Patience));
    EXPECT_TRUE(m_overlays->metaView()->isWanted());
    m_window->slot_hotKey(KeyOperate_Stop);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_window->isPlayViewShown(); }, Patience));
    EXPECT_FALSE(m_overlays->bar()->isVisible());
    EXPECT_FALSE(m_overlays->topBar()->isVisible());
    EXPECT_FALSE(m_overlays->metaView()->isWanted());
    EXPECT_TRUE(m_window->findChild<NormalTitleBar *>()->isVisible());
}

TEST_F(PlayOverlaysTest, ASeekOnTheBarReachesTheEngine)
{
    play(makeFile("film.mkv"));
    m_overlays->bar()->slot_moveProgressSlider(42);
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlay::seek(42", 5000));
}

TEST_F(PlayOverlaysTest, TheSpeedNoteFollowsTheSpeed)
{
    play(makeFile("film.mkv"));
    m_window->slot_hotKey(KeyOperate_FastForward);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_overlays->speedBar()->isWanted(); }, Patience));
    m_overlays->speedBar()->on_pushButton_close_clicked(false);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_overlays->speedBar()->isWanted(); }, Patience));
}

TEST_F(PlayOverlaysTest, TheLastPositionIsOfferedAndAClickGoesThere)
{
    playWithPosition(300);
    ASSERT_TRUE(isNoteOpenAfterItsTime());
    NormalLastPositionLabel *note = m_overlays->lastPosition();
    EXPECT_EQ(note->position(), 300);
    QTest::mouseClick(note, Qt::LeftButton, {}, note->rect().center());
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlay::seek(300", 5000));
    EXPECT_FALSE(note->isOpen());
}

TEST_F(PlayOverlaysTest, WhoWantsToGoOnWithoutAQuestionIsNotAsked)
{
    SettingsManager::instance()->setValue(SettingsKeys::PC_RememberPosition, true);
    playWithPosition(300);
    EXPECT_EQ(m_control->resumeSeconds(), 300);
    EXPECT_FALSE(isNoteOpenAfterItsTime());
}

TEST_F(PlayOverlaysTest, ASourceWithoutAPositionOffersNone)
{
    playWithPosition(0);
    EXPECT_FALSE(isNoteOpenAfterItsTime());
}

TEST_F(PlayOverlaysTest, ASourceThatPlaysByItsMenuOffersNoPositionAndHasNoSeekControl)
{
    SettingsManager::instance()->setValue("PC_DVDPlayMode", true);
    fakeEngine().setStatistic(libvp::VD_Stat_SourceForm, libvp::VD_Source_ImageDvd);
    playWithPosition(300);
    EXPECT_FALSE(isNoteOpenAfterItsTime());
    EXPECT_FALSE(m_overlays->bar()->findChild<QWidget *>("slider_progress")->isVisibleTo(m_overlays->bar()));
    SettingsManager::instance()->remove("PC_DVDPlayMode");
}

TEST_F(PlayOverlaysTest, TheNextEpisodePlaysAtTheEndOfASource)
{
    const QString next = makeFile("s01e02.mkv");
    m_control->setNextEpisode([next] { return next; });
    play(makeFile("s01e01.mkv"));
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackEnded(); });
    ASSERT_TRUE(QTest::qWaitFor([] { return openCount() == 2; }, Patience));
    EXPECT_EQ(m_control->currentPath(), next);
    EXPECT_TRUE(m_window->isPlayViewShown());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening(); }, Patience));
}

TEST_F(PlayOverlaysTest, ANextEpisodeThatIsGoneLeadsBackToTheStartView)
{
    m_control->setNextEpisode([] { return QStringLiteral("/nowhere/s01e02.mkv"); });
    play(makeFile("s01e01.mkv"));
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackEnded(); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isPlayViewShown(); }, Patience));
    EXPECT_EQ(openCount(), 1);
}

TEST_F(PlayOverlaysTest, EveryStepOfTheWheelCounts)
{
    play(makeFile("film.mkv"));
    m_window->slot_changeVolume(-3);
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlayTool::setVolume(0.97", 5000));
    fakeEngine().clearCalls();
    m_window->slot_changeVolume(0);
    for (const std::string &call : fakeEngine().calls())
        EXPECT_EQ(call.find("setVolume"), std::string::npos) << call;
}

TEST_F(PlayOverlaysTest, TheDesktopLearnsWhatPlays)
{
    const QString film = makeFile("film.mkv");
    const MediaSession &session = m_window->mediaSession()->session();
    EXPECT_EQ(session.state(), MediaSession::State::Stopped);
    play(film);
    EXPECT_TRUE(QTest::qWaitFor([&] { return session.state() == MediaSession::State::Playing; }, Patience));
    EXPECT_EQ(session.metadata().title, "film.mkv");
    EXPECT_EQ(session.metadata().url, QUrl::fromLocalFile(film));
    m_window->slot_hotKey(KeyOperate_Stop);
    EXPECT_TRUE(QTest::qWaitFor([&] { return session.state() == MediaSession::State::Stopped; }, Patience));
}

TEST_F(PlayOverlaysTest, AHundredRequestsAtOnceEndWithOnePlaying)
{
    const QString first = makeFile("0.mkv");
    m_window->slot_playSource(first);
    for (int i = 1; i < 100; ++i)
        m_window->slot_playSource(makeFile(QStringLiteral("%1.mkv").arg(i)));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening() && !m_overlays->bar()->isIdle(); },
                                Patience));
    EXPECT_EQ(openCount(), 1);
    EXPECT_EQ(m_control->currentPath(), first);
}

TEST_F(PlayOverlaysTest, TheWindowMovesResizesAndPaintsWhileAnOpenHangs)
{
    fakeEngine().hold("IVDPlay::open");
    m_window->slot_playSource(makeFile("film.mkv"));
    ASSERT_TRUE(QTest::qWaitFor([] { return fakeEngine().waitHeld("IVDPlay::open", 10); }, Patience));
    m_window->resize(700, 400);
    m_window->move(50, 60);
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return m_window->size() == QSize(700, 400) && m_window->pos() == QPoint(50, 60); },
        Patience));
    m_window->slot_menuClicked();
    auto *menu = m_window->findChild<AnimateMenu *>();
    EXPECT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible() && menu->width() > 50; }, Patience));
    fakeEngine().release("IVDPlay::open");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !m_control->isOpening(); }, Patience));
}

TEST_F(PlayOverlaysTest, AWindowThatClosesIsGoneBeforeTheEngineHasStopped)
{
    play(makeFile("film.mkv"));
    fakeEngine().hold("IVDPlay::close");
    bool visibleAtStop = true;
    std::thread engine([&] {
        if (fakeEngine().waitHeld("IVDPlay::close"))
            visibleAtStop = m_window->isVisible();
        fakeEngine().release("IVDPlay::close");
    });
    m_window->close();
    engine.join();
    EXPECT_FALSE(visibleAtStop);
}

TEST_F(PlayOverlaysTest, AScreenshotThatCannotBeWrittenIsTold)
{
    SettingsManager::instance()->setValue(SettingsKeys::PC_SnapShotPath,
                                          QStringLiteral("/proc/no such folder"));
    play(makeFile("film.mkv"));
    QString told;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, m_window.get(), [&] {
        if (auto *box = qobject_cast<NormalMessageBox *>(QApplication::activeModalWidget())) {
            look.stop();
            told = QStringLiteral("told");
            box->button(NormalMessageBox::FirstButtonId)->click();
        }
    });
    look.start(10);
    std::vector<unsigned char> frame(4 * 4 * 4, 200);
    m_window->slot_saveScreenShot(frame.data(), 4, 4);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !told.isEmpty(); }, Patience));
    SettingsManager::instance()->remove(SettingsKeys::PC_SnapShotPath);
}

TEST_F(PlayOverlaysTest, TheMenuOffersOnlyWhatCanBeDone)
{
    const auto *menu = m_window->findChild<AnimateMenu *>();
    const auto enabledRows = [menu] {
        int count = 0;
        for (const AnimateMenu::Row &row : menu->rows())
            count += row.isEnabled ? 1 : 0;
        return count;
    };
    EXPECT_EQ(enabledRows(), 3);
    play(makeFile("film.mkv"));
    EXPECT_EQ(enabledRows(), 6);
}

} // namespace
