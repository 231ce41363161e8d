#include "keys/AppEventFilter.h"

#include "transport/NormalTransparentBar.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class AppEventFilterTest : public testing::Test {
protected:
    AppEventFilterTest()
        : m_filter([this](bool tv) { return tv ? m_tv : m_pc; })
        , m_pcSpy(&m_filter, &AppEventFilter::SIG_PcKeyOperate)
        , m_tvSpy(&m_filter, &AppEventFilter::SIG_TvkeyOperate)
        , m_moveSpy(&m_filter, &AppEventFilter::SIG_mouseMove)
    {
        m_filter.setMainWindow(&m_window, [this](int steps) { m_steps << steps; });
    }

    bool press(QObject *target, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        return m_filter.eventFilter(target, &event);
    }
    bool release(QObject *target, int key)
    {
        QKeyEvent event(QEvent::KeyRelease, key, Qt::NoModifier);
        return m_filter.eventFilter(target, &event);
    }
    void move(QObject *target, int times)
    {
        for (int i = 0; i < times; ++i) {
            QMouseEvent event(QEvent::MouseMove, QPointF(i, i), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            m_filter.eventFilter(target, &event);
        }
    }
    void wheel(QObject *target, int delta)
    {
        QWheelEvent event(QPointF(), QPointF(), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        m_filter.eventFilter(target, &event);
    }
    // The keys of PC mode as they stand in the settings.
    void store(const KeyMap &keys)
    {
        m_pc = keys;
        m_filter.SLOT_PcUpdateKeyMap();
    }
    static int typeOf(const QSignalSpy &spy) { return spy.value(0).value(0).value<KeyOperateType>(); }

    KeyMap m_pc;
    KeyMap m_tv;
    QWidget m_window;
    QList<int> m_steps;
    AppEventFilter m_filter;
    QSignalSpy m_pcSpy;
    QSignalSpy m_tvSpy;
    QSignalSpy m_moveSpy;
};

TEST_F(AppEventFilterTest, PcModeTurnsAKeyOfTheMainWindowIntoAnOperationAndPassesItOn)
{
    EXPECT_FALSE(press(&m_window, Qt::Key_Space));
    ASSERT_EQ(m_pcSpy.size(), 1);
    EXPECT_EQ(typeOf(m_pcSpy), KeyOperate_PlayPause);
}

TEST_F(AppEventFilterTest, AKeyTypedInALineEditFiresNothing)
{
    QLineEdit edit(&m_window);
    press(&edit, Qt::Key_Space);
    EXPECT_TRUE(m_pcSpy.isEmpty());
}

TEST_F(AppEventFilterTest, AKeyOfATransparentBarIsOneOfTheWindow)
{
    NormalTransparentBar bar(NormalTransparentBar::Edge::Top, 40);
    EXPECT_FALSE(press(&bar, Qt::Key_Space));
    ASSERT_EQ(m_pcSpy.size(), 1);
    EXPECT_EQ(typeOf(m_pcSpy), KeyOperate_PlayPause);
}

TEST_F(AppEventFilterTest, AKeyThatAPartTakesIsNoOperation)
{
    m_filter.setKeyOwner([](const QKeyEvent &event) { return event.key() == Qt::Key_Space; });
    EXPECT_FALSE(press(&m_window, Qt::Key_Space));
    EXPECT_TRUE(m_pcSpy.isEmpty());
    EXPECT_FALSE(m_filter.isKeySpent());
    EXPECT_FALSE(press(&m_window, Qt::Key_M));
    EXPECT_EQ(m_pcSpy.size(), 1);
    EXPECT_TRUE(m_filter.isKeySpent());
}

TEST_F(AppEventFilterTest, ABoundKeyIsSpentEvenWhileOperationsAreBlocked)
{
    m_filter.setKeyBlocked(true);
    press(&m_window, Qt::Key_Space);
    EXPECT_TRUE(m_pcSpy.isEmpty());
    EXPECT_TRUE(m_filter.isKeySpent());
    press(&m_window, Qt::Key_F10);
    EXPECT_FALSE(m_filter.isKeySpent()) << "nothing is bound to it";
}

TEST_F(AppEventFilterTest, OfTwoStoredOperationsWithOneKeyTheLowerFiresAndTheOtherNever)
{
    store({{KeyOperate_Stop, Qt::Key_X}, {KeyOperate_Mute, Qt::Key_X}});
    ASSERT_LT(int(KeyOperate_Mute), int(KeyOperate_Stop));
    press(&m_window, Qt::Key_X);
    press(&m_window, Qt::Key_X);
    ASSERT_EQ(m_pcSpy.size(), 2);
    for (const QList<QVariant> &told : m_pcSpy)
        EXPECT_EQ(told.at(0).value<KeyOperateType>(), KeyOperate_Mute);
}

TEST_F(AppEventFilterTest, AnEntryStoredWithReturnIsFiredByTheKeypadsEnter)
{
    store({{KeyOperate_Stop, Qt::Key_Return}, {KeyOperate_Accept, Qt::Key_Y}});
    press(&m_window, Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_EQ(m_pcSpy.size(), 1);
    EXPECT_EQ(typeOf(m_pcSpy), KeyOperate_Stop);
}

TEST_F(AppEventFilterTest, TheKeypadsDigitsAreTheMainDigits)
{
    store({{KeyOperate_Stop, Qt::Key_5}});
    press(&m_window, Qt::Key_5, Qt::KeypadModifier);
    press(&m_window, Qt::Key_5);
    EXPECT_EQ(m_pcSpy.size(), 2);
}

TEST_F(AppEventFilterTest, AnOperationWhoseKeyWasDeletedIsOutOfReach)
{
    store({{KeyOperate_Mute, 0}, {KeyOperate_Stop, Qt::Key_X}});
    for (const int key : {0, int(Qt::Key_Delete), int(Qt::Key_M)})
        press(&m_window, key);
    EXPECT_TRUE(m_pcSpy.isEmpty());
    EXPECT_EQ(m_filter.keyText(false, KeyOperate_Mute), "None");
}

TEST_F(AppEventFilterTest, AMapOfAnEarlierVersionGetsCtrlRightAndAnEntryThatHasItKeepsIt)
{
    store({{KeyOperate_Mute, Qt::Key_M}});
    press(&m_window, Qt::Key_Right, Qt::ControlModifier);
    ASSERT_EQ(m_pcSpy.size(), 1);
    EXPECT_EQ(typeOf(m_pcSpy), KeyOperate_ForwardStep);
    store({{KeyOperate_Mute, Qt::CTRL + Qt::Key_Right}});
    m_pcSpy.clear();
    press(&m_window, Qt::Key_Right, Qt::ControlModifier);
    ASSERT_EQ(m_pcSpy.size(), 1);
    EXPECT_EQ(typeOf(m_pcSpy), KeyOperate_Mute);
}

TEST_F(AppEventFilterTest, AModifierAloneProducesNothing)
{
    for (int key : {int(Qt::Key_Shift), int(Qt::Key_Control), int(Qt::Key_Meta), int(Qt::Key_Alt), 0})
        press(&m_window, key, Qt::ControlModifier);
    EXPECT_TRUE(m_pcSpy.isEmpty());
}

TEST_F(AppEventFilterTest, KeypadEnterAcceptsAsReturnDoes)
{
    press(&m_window, Qt::Key_Enter, Qt::KeypadModifier);
    press(&m_window, Qt::Key_Return);
    ASSERT_EQ(m_pcSpy.size(), 2);
    EXPECT_EQ(m_pcSpy.at(0).at(0).value<KeyOperateType>(), KeyOperate_Accept);
    EXPECT_EQ(m_pcSpy.at(1).at(0).value<KeyOperateType>(), KeyOperate_Accept);
}

TEST_F(AppEventFilterTest, ABlockedOrDisabledFilterFiresNothing)
{
    m_filter.setKeyBlocked(true);
    press(&m_window, Qt::Key_Space);
    m_filter.setKeyBlocked(false);
    m_filter.setKeyEnabled(false);
    press(&m_window, Qt::Key_Space);
    EXPECT_TRUE(m_pcSpy.isEmpty());
}

TEST_F(AppEventFilterTest, TheWheelCountsStepsTruncatedTowardsZero)
{
    wheel(&m_window, 120);
    wheel(&m_window, -120);
    wheel(&m_window, 90);
    wheel(&m_window, 240);
    EXPECT_EQ(m_steps, QList<int>({1, -1, 0, 2}));
}

TEST_F(AppEventFilterTest, TenMovesInTheMainWindowWakeTheControls)
{
    QWidget child(&m_window);
    QWidget stranger;
    move(&stranger, 30);
    EXPECT_TRUE(m_moveSpy.isEmpty());
    move(&child, 9);
    EXPECT_TRUE(m_moveSpy.isEmpty());
    move(&m_window, 1);
    EXPECT_EQ(m_moveSpy.size(), 1);
    move(&m_window, 9);
    EXPECT_EQ(m_moveSpy.size(), 1);
}

TEST_F(AppEventFilterTest, TheMouseRestsThreeSecondsAfterTheLastQualifyingMove)
{
    QSignalSpy rest(&m_filter, &AppEventFilter::SIG_mouseStopMove);
    QElapsedTimer clock;
    clock.start();
    move(&m_window, 10);
    ASSERT_TRUE(rest.wait(10000));
    EXPECT_GE(clock.elapsed(), 2900);
    EXPECT_EQ(rest.size(), 1);
}

TEST_F(AppEventFilterTest, TvModeSwallowsEveryKeyAndFiresTheMappedOnes)
{
    m_filter.setIsPcMode(false);
    QLineEdit edit;
    EXPECT_TRUE(press(&edit, Qt::Key_Backspace));
    EXPECT_TRUE(press(&edit, Qt::Key_Q));
    EXPECT_TRUE(press(&edit, Qt::Key_Shift, Qt::ShiftModifier));
    EXPECT_TRUE(release(&edit, Qt::Key_Backspace));
    ASSERT_EQ(m_tvSpy.size(), 1);
    EXPECT_EQ(typeOf(m_tvSpy), KeyOperate_Return);
    EXPECT_TRUE(m_pcSpy.isEmpty());
}

TEST_F(AppEventFilterTest, TvModeWithOnlyUpAndDownLetsOtherKeysGoOn)
{
    m_filter.setIsPcMode(false);
    m_filter.setOnlyUpDown(true);
    EXPECT_FALSE(press(&m_window, Qt::Key_Left));
    EXPECT_TRUE(press(&m_window, Qt::Key_Up));
    EXPECT_EQ(m_tvSpy.size(), 1);
}

TEST_F(AppEventFilterTest, InTvModeAKeyBetweenNineMovesAndNineMovesKeepsTheControlsAsleep)
{
    m_filter.setIsPcMode(false);
    move(&m_window, 9);
    press(&m_window, Qt::Key_Q);
    move(&m_window, 9);
    EXPECT_TRUE(m_moveSpy.isEmpty());
    move(&m_window, 1);
    EXPECT_EQ(m_moveSpy.size(), 1);
}

TEST_F(AppEventFilterTest, AStoredMapIsReadAnewOnRequest)
{
    m_pc = {{KeyOperate_Stop, Qt::Key_X}};
    m_filter.SLOT_PcUpdateKeyMap();
    press(&m_window, Qt::Key_X);
    press(&m_window, Qt::Key_Space);
    ASSERT_EQ(m_pcSpy.size(), 1);
    EXPECT_EQ(typeOf(m_pcSpy), KeyOperate_Stop);
    EXPECT_EQ(m_filter.keyText(false, KeyOperate_Stop), "X");
}

TEST_F(AppEventFilterTest, AfterStopNothingFiresAnyMore)
{
    m_filter.stop();
    press(&m_window, Qt::Key_Space);
    move(&m_window, 20);
    wheel(&m_window, 120);
    EXPECT_TRUE(m_pcSpy.isEmpty());
    EXPECT_TRUE(m_moveSpy.isEmpty());
    EXPECT_TRUE(m_steps.isEmpty());
}

} // namespace
