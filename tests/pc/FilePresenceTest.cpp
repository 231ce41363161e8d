#include "playcontrol/FilePresence.h"

#include "support/Eventually.h"

#include <QSemaphore>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTest>
#include <QThread>

#include <gtest/gtest.h>

namespace {

constexpr int kWaitMs = 10000;

} // namespace

TEST(FilePresenceTest, TellsOfEachPathWhetherItIsThere)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    FilePresence presence;
    QSignalSpy spy(&presence, &FilePresence::checked);
    presence.check({file.fileName(), file.fileName() + ".gone", "D"});
    ASSERT_EVENTUALLY(spy.size() == 3);
    QSet<QString> present;
    for (const QList<QVariant> &answer : qAsConst(spy)) {
        if (answer.at(1).toBool())
            present << answer.at(0).toString();
    }
    EXPECT_EQ(present, QSet<QString>({file.fileName(), "D"}));
}

TEST(FilePresenceTest, AFolderThatDoesNotAnswerHoldsNobodyUp)
{
    QSemaphore gate;
    std::atomic<bool> onGuiThread{false};
    QThread *const gui = QThread::currentThread();
    FilePresence presence([&](const QString &path) {
        onGuiThread = onGuiThread || QThread::currentThread() == gui;
        if (path == "/net/a.mkv")
            gate.acquire();
        return true;
    });
    QSignalSpy spy(&presence, &FilePresence::checked);
    presence.check({"/net/a.mkv", "/b.mkv"});
    ASSERT_TRUE(spy.wait(kWaitMs));
    EXPECT_EQ(spy.at(0).at(0).toString(), "/b.mkv");
    gate.release();
    ASSERT_TRUE(spy.wait(kWaitMs));
    EXPECT_EQ(spy.at(1).at(0).toString(), "/net/a.mkv");
    EXPECT_FALSE(onGuiThread);
}

TEST(FilePresenceTest, LaterQuestionReplacesAnEarlierOne)
{
    QSemaphore gate;
    QSemaphore begun;
    FilePresence presence([&](const QString &path) {
        if (path == "/old.mkv") {
            begun.release();
            gate.acquire();
        }
        return true;
    });
    QSignalSpy spy(&presence, &FilePresence::checked);
    presence.check({"/old.mkv"});
    ASSERT_TRUE(begun.tryAcquire(1, kWaitMs));
    presence.check({"/new.mkv", "/newer.mkv"});
    gate.release();
    ASSERT_EVENTUALLY(spy.size() == 2);
    for (const QList<QVariant> &answer : qAsConst(spy))
        EXPECT_NE(answer.at(0).toString(), "/old.mkv");
    presence.check({});
}
