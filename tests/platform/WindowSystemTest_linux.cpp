#include "platform/WindowSystem.h"

#include <QByteArray>
#include <QProcess>
#include <QProcessEnvironment>

#include <gtest/gtest.h>

namespace {

// The variables as they were, again afterwards.
class KeptVariables {
public:
    KeptVariables()
        : m_platform(qgetenv("QT_QPA_PLATFORM"))
        , m_display(qgetenv("DISPLAY"))
    {
    }
    ~KeptVariables()
    {
        qputenv("QT_QPA_PLATFORM", m_platform);
        if (m_display.isNull())
            qunsetenv("DISPLAY");
        else
            qputenv("DISPLAY", m_display);
    }
    KeptVariables(const KeptVariables &) = delete;
    KeptVariables &operator=(const KeptVariables &) = delete;

private:
    QByteArray m_platform;
    QByteArray m_display;
};

struct Case {
    const char *asked;
    const char *display;
    const char *chosen;
};

TEST(WindowSystemTest, WindowsStandOnTheXServerUnlessSomethingElseThanWaylandWasAskedFor)
{
    const KeptVariables kept;
    for (const Case &row :
         {Case{"", ":1", "xcb"}, Case{"wayland", ":1", "xcb"}, Case{"wayland;xcb", ":1", "xcb"},
          Case{"wayland-egl", ":1", "xcb"}, Case{"offscreen", ":1", "offscreen"}, Case{"xcb", ":1", "xcb"},
          Case{"wayland", "", "wayland"}, Case{"", "", ""}}) {
        qputenv("QT_QPA_PLATFORM", row.asked);
        qputenv("DISPLAY", row.display);
        WindowSystem::choose();
        EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), QByteArray(row.chosen)) << row.asked << ' ' << row.display;
    }
}

TEST(WindowSystemTest, AProgramThatLosesItsDisplayEndsWithoutTearingItselfDown)
{
    QProcess server;
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "640x480x24", "-nolisten", "tcp"});
    ASSERT_TRUE(server.waitForReadyRead(20000));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", ":" + QString::fromLatin1(server.readLine()).trimmed());
    environment.remove("QT_QPA_PLATFORM");
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(DISPLAY_CHILD, QStringList());
    ASSERT_TRUE(child.waitForReadyRead(20000));
    server.kill();
    ASSERT_TRUE(server.waitForFinished(20000));
    ASSERT_TRUE(child.waitForFinished(20000));
    EXPECT_EQ(child.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(child.exitCode(), 1);
}

} // namespace
