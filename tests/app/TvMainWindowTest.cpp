#include "tv/TvMainWindow.h"

#include "WindowFixture.h"

#include "core/ApplicationInfoManager.h"
#include "tv/TvPlayingWidget.h"

namespace {

class TvMainWindowTest : public WindowFixture {
protected:
    TvMainWindowTest()
    {
        ApplicationInfoManager::instance()->setRunMode(2);
        m_window = std::make_unique<TvMainWindow>();
    }
    ~TvMainWindowTest() override { ApplicationInfoManager::instance()->setRunMode(1); }

    void playAndWait(const QString &path)
    {
        m_window->playAtOnce(path);
        EXPECT_TRUE(m_window->isPlayingPageShown());
        ASSERT_TRUE(QTest::qWaitFor([] { return openCount() > 0; }, 10000));
        ASSERT_TRUE(QTest::qWaitFor([] { return fakeEngine().play() != nullptr; }, 10000));
    }

    std::unique_ptr<TvMainWindow> m_window;
};

TEST_F(TvMainWindowTest, OpensInFullScreenOnTheStartPage)
{
    EXPECT_TRUE(m_window->isFullScreen());
    EXPECT_FALSE(m_window->isPlayingPageShown());
    const QStringList log = TestLog::infoLines();
    EXPECT_LT(log.indexOf("[TV_CheckTime] start load mainwindow"),
              log.indexOf("[TV_CheckTime] Load playingWgt start."));
    EXPECT_LT(log.indexOf("[TV_CheckTime] InitStack widget."),
              log.indexOf("[TV_CheckTime] Show FullScreen."));
}

TEST_F(TvMainWindowTest, APathIsPlayedAsSoonAsTheEngineIsUp)
{
    playAndWait(makeFile("film.mkv"));
    EXPECT_TRUE(TestLog::infoLines().contains("[TV_CheckTime] Init play config end."));
}

TEST_F(TvMainWindowTest, TheEndLeadsBackToTheStartPage)
{
    playAndWait(makeFile("film.mkv"));
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackEnded(); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isPlayingPageShown(); }, 10000));
    EXPECT_TRUE(m_window->isVisible());
}

TEST_F(TvMainWindowTest, ArmedItClosesAtTheEnd)
{
    m_window->setExitAfterPlaying(true);
    playAndWait(makeFile("film.mkv"));
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackEnded(); });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isVisible(); }, 10000));
}

TEST_F(TvMainWindowTest, ReturnAndStopBothLeaveThePlayingPage)
{
    for (KeyOperateType key : {KeyOperate_Return, KeyOperate_Stop}) {
        m_window->playAtOnce(makeFile("film.mkv"));
        ASSERT_TRUE(m_window->isPlayingPageShown());
        m_window->SLOT_keyOperate(key);
        EXPECT_FALSE(m_window->isPlayingPageShown());
    }
}

TEST_F(TvMainWindowTest, ReturnOnTheStartPageDoesNothing)
{
    m_window->SLOT_keyOperate(KeyOperate_Return);
    EXPECT_TRUE(m_window->isVisible());
}

TEST_F(TvMainWindowTest, TheCloseKeyClosesFromAnyPage)
{
    m_window->SLOT_keyOperate(KeyOperate_Close);
    EXPECT_FALSE(m_window->isVisible());
}

TEST_F(TvMainWindowTest, AFailureIsShownUntilItIsAccepted)
{
    playAndWait(makeFile("film.mkv"));
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackFailed(7, vdFileInfo()); });
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_window->playingPage()->isMessageShown(); }, 10000));
    m_window->SLOT_keyOperate(KeyOperate_Mute);
    EXPECT_TRUE(m_window->playingPage()->isMessageShown());
    m_window->SLOT_keyOperate(KeyOperate_Accept);
    EXPECT_FALSE(m_window->isPlayingPageShown());
}

} // namespace
