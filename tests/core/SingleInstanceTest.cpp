#include "core/SingleInstance.h"
#include "core/InstanceLock.h"
#include "core/WaitBudget.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class SingleInstanceTest : public testing::Test {
protected:
    SingleInstanceTest() { qputenv("TMPDIR", m_folder.path().toLocal8Bit()); }
    ~SingleInstanceTest() override { qputenv("TMPDIR", m_before); }

    WaitBudget m_waits{500};
    QTemporaryDir m_folder;
    QByteArray m_before{qgetenv("TMPDIR")};
};

TEST_F(SingleInstanceTest, OnlyTheFirstHoldsTheSegmentUntilItLetsGo)
{
    SingleInstance first;
    SingleInstance second;
    EXPECT_TRUE(first.acquire(m_waits));
    EXPECT_FALSE(second.acquire(m_waits));
    EXPECT_FALSE(second.acquire(m_waits));
    first.release();
    EXPECT_TRUE(second.acquire(m_waits));
}

// On a machine that is busy with several starts at once.
TEST_F(SingleInstanceTest, ACopyThatIsStillStartingCountsAsAnother)
{
    SingleInstance late;
    {
        const InstanceLock starting(m_waits);
        ASSERT_FALSE(starting.isHeldElsewhere());
        WaitBudget noTime{0};
        EXPECT_FALSE(late.acquire(noTime));
    }
    EXPECT_TRUE(late.acquire(m_waits));
}

TEST_F(SingleInstanceTest, ExactlyOneFileIsHandedOverAndEverythingElseIsAStart)
{
    EXPECT_EQ(SingleInstance::handOverText({"player", "/films/a.mkv"}), "/films/a.mkv");
    EXPECT_EQ(SingleInstance::handOverText({"player", "bluray"}), "bluray");
    EXPECT_EQ(SingleInstance::handOverText({"player"}), "StartPlayer");
    EXPECT_EQ(SingleInstance::handOverText({}), "StartPlayer");
    EXPECT_EQ(SingleInstance::handOverText({"player", "/films/a.mkv", "/films/b.mkv"}), "StartPlayer");
}

TEST_F(SingleInstanceTest, AFileOfTheOwnWorkingFolderIsHandedOverWithItsFullPath)
{
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_folder.path()));
    QFile file("here.mkv");
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(SingleInstance::handOverText({"player", "here.mkv"}), QDir::currentPath() + "/here.mkv");
    EXPECT_EQ(SingleInstance::handOverText({"player", "gone.mkv"}), "gone.mkv");
    QDir::setCurrent(before);
}

TEST_F(SingleInstanceTest, ANameThatNobodyServesIsGivenUpAtOnce)
{
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(SingleInstance::handOver("nobody", "StartPlayer", 500));
    EXPECT_LT(clock.elapsed(), 2000);
}

} // namespace
