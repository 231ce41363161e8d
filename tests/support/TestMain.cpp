// main() of every test program: a home folder of its own, the offscreen platform unless a display was asked
// for, and Qt's messages watched.
#include "TestLog.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdlib>

namespace {

class MessageWatcher final : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo &) override { TestLog::reset(); }
    void OnTestEnd(const testing::TestInfo &) override
    {
        const QStringList lines = TestLog::takeUnexpected();
        for (const QString &line : lines)
            ADD_FAILURE() << "unexpected message: " << qPrintable(line);
    }
};

void moveHomeTo(const QString &folder)
{
    // Documents and pictures follow HOME; user-dirs.dirs of the real home must not be read.
    qputenv("HOME", folder.toUtf8());
    qputenv("XDG_DATA_HOME", (folder + "/data").toUtf8());
    qputenv("XDG_CONFIG_HOME", (folder + "/config").toUtf8());
    qputenv("XDG_CACHE_HOME", (folder + "/cache").toUtf8());
    for (const char *name : {"/data", "/config", "/cache", "/Documents", "/Pictures"})
        QDir().mkpath(folder + name);
    // Sockets and shared memory keys follow these two: tests that run side by side must not meet.
    QDir().mkpath(folder + "/run");
    QFile::setPermissions(folder + "/run", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("XDG_RUNTIME_DIR", (folder + "/run").toUtf8());
    qputenv("TMPDIR", folder.toUtf8());
}

} // namespace

#if defined(__SANITIZE_ADDRESS__)
// No library is unloaded then. The graphics drivers are, by those who loaded them, and with them go the
// variables that hold their memory: at the end it would look lost, and nothing could tell where it came from.
extern "C" __attribute__((visibility("default"))) int dlclose(void *)
{
    return 0;
}
#endif

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    QTemporaryDir home;
    moveHomeTo(home.path());
    // No test starts a media server by the way, nor does a player that it starts.
    qputenv("QUORIN_NO_LIBRARY", "1");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", qEnvironmentVariableIsEmpty("QUORIN_TEST_DISPLAY") ? "offscreen" : "xcb");
    TestLog::install();
    testing::UnitTest::GetInstance()->listeners().Append(new MessageWatcher);
    QApplication app(argc, argv);
    app.setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
