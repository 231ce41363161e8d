#include "menus/OpticalDiscs.h"

#include "support/Eventually.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

#include <gtest/gtest.h>

TEST(OpticalDiscsTest, AsksOnAWorkerAndTellsOfAChangeOnce)
{
    std::atomic<bool> onGuiThread{false};
    QThread *const gui = QThread::currentThread();
    OpticalDiscs discs([&] {
        onGuiThread = QThread::currentThread() == gui;
        return QVector<OpticalDiscs::Disc>{{"D", "FILM"}};
    });
    QSignalSpy changed(&discs, &OpticalDiscs::changed);
    EXPECT_TRUE(discs.discs().isEmpty());
    discs.refresh();
    ASSERT_EVENTUALLY(changed.size() == 1);
    ASSERT_EQ(discs.discs().size(), 1);
    EXPECT_EQ(discs.discs().first().drive, "D");
    EXPECT_FALSE(onGuiThread);
}

TEST(OpticalDiscsTest, ADriveThatDoesNotAnswerHoldsNobodyUp)
{
    QSemaphore gate;
    std::atomic<int> asked{0};
    OpticalDiscs discs([&] {
        ++asked;
        gate.acquire();
        return QVector<OpticalDiscs::Disc>{};
    });
    discs.refresh();
    ASSERT_EVENTUALLY(asked == 1);
    for (int n = 0; n < 100; ++n)
        discs.refresh();
    EXPECT_TRUE(discs.discs().isEmpty());
    EXPECT_EQ(asked, 1);
    gate.release();
}
