// Keys of the window while a part over the picture has the keyboard: each acts once.
#include "WindowFixture.h"

#include "core/CommonInfoManager.h"
#include "dialogs/NormalMessageBox.h"
#include "keys/AppEventFilter.h"
#include "keys/KeyMapTables.h"
#include "overlays/PlayOverlays.h"
#include "pc/NormalMainWindow.h"
#include "pc/NormalPlayControl.h"
#include "preview/SmartPreview.h"
#include "queue/NormalPlaylistView.h"
#include "queue/QueueListView.h"
#include "transport/NormalOperateBar.h"
#include "transport/TransportButton.h"
#include "transport/VolumeControl.h"
#include "transport/VolumeSlider.h"
#include "ui/FocusRing.h"

#include <QApplication>
#include <QSignalSpy>

namespace {

constexpr int Patience = 10000;

class WindowKeysTest : public WindowFixture {
protected:
    WindowKeysTest()
    {
        m_window = std::make_unique<NormalMainWindow>(nullptr, true);
        m_overlays = m_window->overlays();
        m_playlist = m_overlays->playlist();
        m_filter->setIsPcMode(true);
        m_filter->setKeyEnabled(true);
        m_filter->setMainWindow(m_window.get(), [](int) {});
        qApp->installEventFilter(m_filter);
        useKeys({});
    }
    ~WindowKeysTest() override
    {
        qApp->removeEventFilter(m_filter);
        useKeys({});
        m_window.reset();
        SettingsManager::instance()->remove(QLatin1String("PC_Playlist"));
    }

    // The default keys, but for these.
    void useKeys(const KeyMap &others)
    {
        KeyMap map = KeyMapTables::defaultPcKeyMap();
        for (auto it = others.cbegin(); it != others.cend(); ++it) {
            for (int &key : map) {
                if (KeyMapTables::normalizedKey(key) == KeyMapTables::normalizedKey(it.value()))
                    key = 0;
            }
            map[it.key()] = it.value();
        }
        CommonInfoManager::instance()->savePcKeyMap(map);
        m_filter->SLOT_PcUpdateKeyMap();
    }
    void play()
    {
        m_window->slot_playSource(makeFile("film.mkv"));
        ASSERT_TRUE(QTest::qWaitFor(
            [this] {
                return openCount() > 0 && !m_window->playControl()->isOpening()
                       && !m_overlays->bar()->isIdle() && m_overlays->bar()->isVisible();
            },
            Patience));
        // With what is known of it, there are pictures to show.
        fakeEngine().raise([](libvp::IVDPlayCallback &callback) {
            const libvp::VDVideoInfo info{};
            callback.OnVideoInfo(&info);
        });
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return m_window->playControl()->mediaKind() == "Video"; }, Patience));
        fakeEngine().clearCalls();
    }
    void openPanelOnItsFirstRow()
    {
        m_playlist->addSources({makeFile("first.mkv"), makeFile("second.mkv")});
        ASSERT_TRUE(
            QTest::qWaitFor([this] { return m_playlist->queue()->model()->sourceCount() == 2; }, Patience));
        m_playlist->open();
        ASSERT_TRUE(QTest::qWaitFor([this] { return m_playlist->cardRect().left() == 0; }, Patience));
        const QModelIndex first = m_playlist->queue()->model()->index(0);
        QTest::mouseClick(m_playlist->list()->viewport(), Qt::LeftButton, Qt::NoModifier,
                          m_playlist->list()->visualRect(first).center());
        ASSERT_TRUE(m_playlist->isKeyboardUsed());
    }
    void openStrip()
    {
        m_overlays->preview()->slot_setTimeInfo(1, 100);
        m_overlays->preview()->slot_previewClicked(true);
        ASSERT_TRUE(m_overlays->preview()->isStripOpen());
    }
    void key(int code, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_window.get(), Qt::Key(code), modifiers);
    }
    [[nodiscard]] bool isBarUsed() const
    {
        return m_overlays->bar()->window()->property(FocusRing::Property).toBool();
    }
    // Walks along the bar; false when there is no such part on it.
    bool tabTo(const QWidget *part)
    {
        for (int step = 0; step < 40; ++step) {
            key(Qt::Key_Tab);
            if (FocusRing::isOn(part))
                return true;
        }
        return false;
    }
    [[nodiscard]] static int count(const std::string &beginning)
    {
        int found = 0;
        for (const std::string &call : fakeEngine().calls())
            found += call.rfind(beginning, 0) == 0 ? 1 : 0;
        return found;
    }

    AppEventFilter *m_filter{AppEventFilter::instance()};
    std::unique_ptr<NormalMainWindow> m_window;
    PlayOverlays *m_overlays{nullptr};
    NormalPlaylistView *m_playlist{nullptr};
};

// ---- the panel of the queue

TEST_F(WindowKeysTest, AClickInThePanelLeavesTheWindowItsKeys)
{
    play();
    openPanelOnItsFirstRow();
    key(Qt::Key_Space);
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlay::togglePause", Patience));
    key(Qt::Key_F11);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_window->isFullScreen(); }, Patience));
    key(Qt::Key_F11);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isFullScreen(); }, Patience));
    EXPECT_EQ(count("IVDPlay::togglePause"), 1);
}

TEST_F(WindowKeysTest, ArrowsMoveInThePanelAndDoNothingElse)
{
    play();
    openPanelOnItsFirstRow();
    QSignalSpy seeks(m_window.get(), &NormalMainWindow::sig_seek);
    QSignalSpy volume(m_overlays->bar()->volumeControl(), &VolumeControl::volumeShown);
    QSignalSpy operations(m_filter, &AppEventFilter::SIG_PcKeyOperate);
    key(Qt::Key_Down);
    EXPECT_EQ(m_playlist->selectNode().row(), 1);
    key(Qt::Key_Up);
    EXPECT_EQ(m_playlist->selectNode().row(), 0);
    key(Qt::Key_Left);
    key(Qt::Key_Right);
    EXPECT_EQ(operations.count(), 0);
    EXPECT_EQ(seeks.count(), 0);
    EXPECT_EQ(volume.count(), 0);
    // Out of the panel they are the window's again.
    key(Qt::Key_Escape);
    key(Qt::Key_Up);
    EXPECT_EQ(operations.count(), 1);
}

// ---- the bar

TEST_F(WindowKeysTest, AnArrowOnTheVolumeSliderDoesNotSeekAsWell)
{
    play();
    m_overlays->wake();
    VolumeSlider *slider = m_overlays->bar()->volumeSlider();
    ASSERT_TRUE(tabTo(slider));
    QSignalSpy seeks(m_window.get(), &NormalMainWindow::sig_seek);
    const int before = slider->value();
    key(Qt::Key_Left);
    EXPECT_LT(slider->value(), before);
    key(Qt::Key_Right);
    EXPECT_EQ(slider->value(), before);
    EXPECT_EQ(seeks.count(), 0);
}

TEST_F(WindowKeysTest, EnterOnAButtonOfTheBarPressesItAlone)
{
    useKeys({{KeyOperate_FullScreen, Qt::Key_Return}});
    play();
    m_overlays->wake();
    TransportButton *button = m_overlays->bar()->button(NormalOperateBar::Button::Volume);
    ASSERT_TRUE(tabTo(button));
    QSignalSpy pressed(button, &QAbstractButton::clicked);
    QSignalSpy operations(m_filter, &AppEventFilter::SIG_PcKeyOperate);
    key(Qt::Key_Return);
    EXPECT_EQ(pressed.count(), 1);
    EXPECT_EQ(operations.count(), 0);
    key(Qt::Key_Escape);
    key(Qt::Key_Return);
    EXPECT_EQ(pressed.count(), 1);
    EXPECT_EQ(operations.count(), 1);
}

// ---- the window's own

TEST_F(WindowKeysTest, ABoundPlusDoesNotRaiseTheVolume)
{
    play();
    const VolumeSlider *slider = m_overlays->bar()->volumeSlider();
    m_overlays->bar()->volumeControl()->changeVolume(-1);
    const int lower = slider->value();
    key(Qt::Key_Plus);
    EXPECT_GT(slider->value(), lower);
    useKeys({{KeyOperate_PlayPause, Qt::Key_Plus}});
    m_overlays->bar()->volumeControl()->changeVolume(-1);
    ASSERT_EQ(slider->value(), lower);
    key(Qt::Key_Plus);
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlay::togglePause", Patience));
    EXPECT_EQ(slider->value(), lower);
}

TEST_F(WindowKeysTest, ABoundEscapeDoesNotLeaveTheFullScreen)
{
    useKeys({{KeyOperate_PlayPause, Qt::Key_Escape}});
    play();
    m_window->slot_fullScreen();
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_window->isFullScreen(); }, Patience));
    key(Qt::Key_Escape);
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlay::togglePause", Patience));
    EXPECT_TRUE(m_window->isFullScreen());
}

TEST_F(WindowKeysTest, ABoundTabDoesNotEnterTheBar)
{
    useKeys({{KeyOperate_PlayPause, Qt::Key_Tab}});
    play();
    m_overlays->wake();
    key(Qt::Key_Tab);
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlay::togglePause", Patience));
    EXPECT_FALSE(isBarUsed());
}

// ---- the strip of pictures

TEST_F(WindowKeysTest, TheStripTakesItsKeysAndNotTheOperationsOfOthers)
{
    useKeys({{KeyOperate_NextChapter, Qt::Key_X}});
    fakeEngine().answer("IVDPlay::chapterCount", 5);
    fakeEngine().answer("IVDPlay::chapter", 1);
    play();
    openStrip();
    QSignalSpy operations(m_filter, &AppEventFilter::SIG_PcKeyOperate);
    for (const int code : {Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Right})
        key(code);
    EXPECT_EQ(operations.count(), 0);
    key(Qt::Key_X);
    EXPECT_EQ(operations.count(), 1);
    EXPECT_TRUE(fakeEngine().waitCall("IVDPlay::goToChapter", Patience));
    EXPECT_TRUE(m_overlays->preview()->isStripOpen());
    key(Qt::Key_Escape);
    EXPECT_FALSE(m_overlays->preview()->isStripOpen());
}

TEST_F(WindowKeysTest, AKeyThatOpensTheStripIsNotGoneOnWithThere)
{
    useKeys({{KeyOperate_SmartView, Qt::Key_Tab}});
    play();
    m_overlays->preview()->slot_setTimeInfo(1, 100);
    key(Qt::Key_Tab);
    ASSERT_TRUE(m_overlays->preview()->isStripOpen());
    EXPECT_FALSE(m_overlays->preview()->strip()->window()->property(FocusRing::Property).toBool());
}

} // namespace
