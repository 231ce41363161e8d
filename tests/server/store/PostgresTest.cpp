#include "PostgresServer.h"
#include "StoreFixture.h"

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>

// The tests of the library once more, in one process over one server.
TEST(PostgresTest, TheLibraryIsTheSameOnAServer)
{
    PostgresServer server;
    const QString failure = server.start();
    if (!failure.isEmpty())
        GTEST_SKIP() << qPrintable(failure);
    QProcess tests;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(kServerVariable), server.host());
    tests.setProcessEnvironment(environment);
    tests.setProcessChannelMode(QProcess::MergedChannels);
    tests.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--gtest_filter=Library*")});
    constexpr int kPatienceMs = 200000;
    ASSERT_TRUE(tests.waitForFinished(kPatienceMs));
    const QByteArray output = tests.readAll();
    EXPECT_EQ(tests.exitCode(), 0) << output.constData();
    EXPECT_TRUE(output.contains("[  PASSED  ]")) << output.constData();
    EXPECT_FALSE(output.contains("SKIPPED")) << output.constData();
    RecordProperty("tests", output.count("[       OK ]"));
    EXPECT_GT(output.count("[       OK ]"), 20);
}
