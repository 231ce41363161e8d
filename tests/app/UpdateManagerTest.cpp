#include "online/UpdateManager.h"

#include "support/TestLog.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace {

class UpdateManagerTest : public testing::Test {
protected:
    UpdateManager manager()
    {
        return {"/opt/player/Update.exe", "/srv/u/update_config.xml",
                [this](const QString &program, const QStringList &arguments) {
                    m_started << program << arguments;
                    return m_startWorks;
                },
                [this] { return m_running; }};
    }

    bool m_startWorks{true};
    bool m_running{false};
    QStringList m_started;
};

TEST_F(UpdateManagerTest, StartsTheUpdaterWithTheQuotedConfiguration)
{
    EXPECT_TRUE(manager().check(UpdateManager::Flag::Auto));
    EXPECT_EQ(m_started, QStringList({"/opt/player/Update.exe", "\"/srv/u/update_config.xml\""}));
    EXPECT_EQ(TestLog::infoLines(),
              QStringList({"[Web service] update flag: Auto", "[Web service] start update: Success"}));
}

TEST_F(UpdateManagerTest, ARunningUpdaterIsNotStartedTwice)
{
    m_running = true;
    EXPECT_TRUE(manager().check(UpdateManager::Flag::Auto));
    EXPECT_TRUE(m_started.isEmpty());
}

TEST_F(UpdateManagerTest, AskedForByTheUserItIsStartedAnyway)
{
    m_running = true;
    manager().check(UpdateManager::Flag::Manual);
    EXPECT_FALSE(m_started.isEmpty());
}

TEST_F(UpdateManagerTest, AFailedStartIsLogged)
{
    m_startWorks = false;
    EXPECT_FALSE(manager().check(UpdateManager::Flag::Manual));
    EXPECT_EQ(TestLog::infoLines(),
              QStringList({"[Web service] update flag: Manual", "[Web service] start update: Fail"}));
}

} // namespace
