// Actions that nobody knows, tracks that have gone since the menu opened, and stored keys of every kind: over
// the real engine.
#include "ActionRig.h"

#include "play/TestClips.h"
#include "support/Eventually.h"
#include "support/TestLog.h"

#include "core/SettingsKeys.h"
#include "keys/AppEventFilter.h"
#include "menus/NormalAction.h"
#include "pc/NormalMainWindow.h"
#include "pc/NormalPlayControl.h"
#include "player/QPlayer.h"

#include <QAction>
#include <QElapsedTimer>
#include <QFile>
#include <QSettings>

#include <climits>

namespace {

class StaleActions : public testing::Test {
protected:
    // As the menu does that was open before things changed.
    void trigger(const QString &key)
    {
        NormalAction action(key, {}, nullptr);
        m_rig.window().slot_dealMenuAction(&action);
    }

    // What the play is like, so far as an action could have changed it.
    QString state()
    {
        QStringList state;
        for (const char *name : {"path", "aid", "sid", "chapter", "pause", "speed", "mute", "vf",
                                 "video-rotate", "video-aspect-override", "glsl-shaders"})
            state << QLatin1String(name) + QLatin1Char('=') + m_rig.property(name);
        return state.join(QLatin1Char(' '));
    }

    // A key map as a file has it.
    void store(const QList<QPair<QVariant, QVariant>> &entries)
    {
        QList<QVariantMap> array;
        for (const auto &entry : entries)
            array << QVariantMap{{QLatin1String(SettingsKeys::HotKey_Key), entry.first},
                                 {QLatin1String(SettingsKeys::HotKey_Value), entry.second}};
        ActionRig::settings().writeArray(QLatin1String(SettingsKeys::PC_keyMap), array);
        AppEventFilter::instance()->SLOT_PcUpdateKeyMap();
    }

    ActionRig m_rig;
};

} // namespace

TEST_F(StaleActions, UnknownOnesLeaveThePlayAndALineEach)
{
    ASSERT_TRUE(m_rig.play("film.mkv"));
    const QString before = state();
    for (const QString &key : {QStringLiteral("no such action"), QStringLiteral(""), QStringLiteral("stop "),
                               QStringLiteral("STOP"), QString(100000, QLatin1Char('x'))}) {
        trigger(key);
        EXPECT_TRUE(TestLog::infoLines().contains(QStringLiteral("[Menu] nothing to do for: ") + key));
    }
    QAction foreign(QStringLiteral("Stop"));
    m_rig.window().slot_dealMenuAction(&foreign);
    m_rig.window().slot_dealMenuAction(nullptr);
    for (const int operation : {-1, -7, 4, 6, 24, 27, 36, 41, 999, INT_MAX, INT_MIN})
        m_rig.window().slot_hotKey(KeyOperateType(operation));
    // One that is known comes behind them all.
    trigger(QStringLiteral("90cw"));
    EXPECT_TRUE(m_rig.reaches("video-rotate", "90"));
    trigger(QStringLiteral("rotateOff"));
    EXPECT_TRUE(m_rig.reaches("video-rotate", "0"));
    EXPECT_EQ(state(), before);
}

TEST_F(StaleActions, TracksAndChaptersThatAreGoneChangeNothing)
{
    const QStringList entries{"AudioStream_2", "SubtitleStream_2", "Chapter_3", "shaderGone.fx"};
    ASSERT_TRUE(m_rig.play("film.mkv"));
    for (const QString &key : entries.mid(0, 3))
        EXPECT_TRUE(m_rig.isOffered(key)) << key.toStdString();
    ASSERT_TRUE(m_rig.play("plain.mp4"));
    const QString before = state();
    for (const QString &key : entries) {
        EXPECT_FALSE(m_rig.isOffered(key)) << key.toStdString();
        trigger(key);
    }
    trigger(QStringLiteral("AudioStream_99999999999999999999"));
    trigger(QStringLiteral("AudioStream_-4"));
    trigger(QStringLiteral("Chapter_two"));
    trigger(QStringLiteral("shader../../../secret.fx"));
    trigger(QStringLiteral("cycle Subtitle"));
    // With one track the cycle selects the same one.
    trigger(QStringLiteral("cycle Audio"));
    trigger(QStringLiteral("90cw"));
    EXPECT_TRUE(m_rig.reaches("video-rotate", "90"));
    trigger(QStringLiteral("rotateOff"));
    EXPECT_TRUE(m_rig.reaches("video-rotate", "0"));
    EXPECT_EQ(state(), before);
    EXPECT_TRUE(m_rig.isMarked("AudioStream_0"));
    EXPECT_TRUE(m_rig.isMarked("subtitleOff"));
}

TEST_F(StaleActions, ANumberThatIsNoneSelectsTheFirstTrack)
{
    ASSERT_TRUE(m_rig.play("film.mkv"));
    trigger(QStringLiteral("AudioStream_2"));
    ASSERT_TRUE(m_rig.reaches("aid", "3"));
    trigger(QStringLiteral("AudioStream_two"));
    EXPECT_TRUE(m_rig.reaches("aid", "1"));
}

TEST_F(StaleActions, WhatIsChosenAfterTheEndOfTheSourceDoesNothing)
{
    ASSERT_TRUE(m_rig.play("film.mkv"));
    m_rig.stop();
    for (const char *key : {"AudioStream_1", "Chapter_2", "1 : 1", "90cw", "rewind", "10 Forward", "stop",
                            "take Snapshot", "load Subtitle", "playStatusSwitch"})
        trigger(QLatin1String(key));
    EXPECT_FALSE(m_rig.window().isPlayViewShown());
    ASSERT_TRUE(m_rig.play("film.mkv"));
    EXPECT_EQ(m_rig.property("aid"), "1");
    EXPECT_EQ(m_rig.property("video-rotate"), "0");
}

TEST_F(StaleActions, AKeyMapFullOfRubbishLeavesTheKeysThatAreGood)
{
    QList<QPair<QVariant, QVariant>> rubbish{{KeyOperate_PlayPause, int(Qt::Key_Space)},
                                             {-5, int(Qt::Key_Space)},
                                             {-1, int(Qt::Key_R)},
                                             {41, int(Qt::Key_Space)},
                                             {INT_MAX, INT_MAX},
                                             {INT_MIN, INT_MIN},
                                             {KeyOperate_Mute, -1},
                                             {KeyOperate_Stop, 0},
                                             {"text", "text"},
                                             {7, "F11"},
                                             {QVariantMap{}, 3},
                                             {KeyOperate_Rewind, 0x7fffffff}};
    for (int n = 100; n < 5000; ++n)
        rubbish.append({n, int(Qt::Key_Space)});
    store(rubbish);
    const QList<QVariantMap> before = ActionRig::settings().readArray(QLatin1String(SettingsKeys::PC_keyMap));
    m_rig.restart();
    ASSERT_TRUE(m_rig.play("film.mkv"));
    m_rig.pressKey(Qt::Key_Space);
    EXPECT_TRUE(m_rig.reaches("pause", "yes"));
    // What every map must have is there, what this one has not is without a key.
    EXPECT_TRUE(m_rig.press(KeyOperate_ForwardStep));
    EXPECT_TRUE(m_rig.reaches(
        [](ActionRig &rig) { return QString::number(qRound(rig.property("time-pos").toDouble() / 10)); },
        "1"));
    m_rig.pressKey(Qt::Key_M);
    m_rig.pressKey(Qt::Key_R);
    m_rig.pressKey(Qt::CTRL + Qt::Key_S);
    m_rig.pressKey(Qt::Key_Space);
    EXPECT_TRUE(m_rig.reaches("pause", "no"));
    EXPECT_EQ(m_rig.property("mute"), "no");
    EXPECT_EQ(m_rig.property("speed"), "1.000");
    // The file is the user's.
    EXPECT_EQ(ActionRig::settings().readArray(QLatin1String(SettingsKeys::PC_keyMap)), before);
}

TEST_F(StaleActions, OfTwoOperationsOnOneKeyTheLowerNumberActsAlone)
{
    store({{KeyOperate_Stop, int(Qt::Key_X)}, {KeyOperate_Mute, int(Qt::Key_X)}});
    ASSERT_TRUE(m_rig.play("film.mkv"));
    m_rig.pressKey(Qt::Key_X);
    EXPECT_TRUE(m_rig.reaches("mute", "yes"));
    m_rig.pressKey(Qt::Key_X);
    EXPECT_TRUE(m_rig.reaches("mute", "no"));
    EXPECT_TRUE(m_rig.window().playControl()->hasSource());
}
