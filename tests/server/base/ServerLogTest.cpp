#include "base/ServerLog.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

namespace {

QStringList linesOf(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    lines.removeLast();
    return lines;
}

class ServerLogTest : public testing::Test {
protected:
    QTemporaryDir m_folder;
    QString m_path{m_folder.filePath(QStringLiteral("server.log"))};
};

} // namespace

TEST_F(ServerLogTest, EscapesWhatWouldForgeALine)
{
    struct Row {
        QString text;
        QString line;
    };
    const Row rows[] = {
        {QStringLiteral("plain text"), QStringLiteral("plain text")},
        {QStringLiteral("a\nb"), QStringLiteral("a\\nb")},
        {QStringLiteral("a\r\tb"), QStringLiteral("a\\r\\tb")},
        {QString(QChar(0)), QStringLiteral("\\u{0}")},
        {QString(QChar(0x1b)) + QStringLiteral("[31m"), QStringLiteral("\\u{1b}[31m")},
        {QString(QChar(0x85)), QStringLiteral("\\u{85}")},
        {QString(QChar(0x2028)), QStringLiteral("\\u{2028}")},
        {QString(QChar(0x202e)), QStringLiteral("\\u{202e}")},
        {QString(QChar(0xd800)), QStringLiteral("\\u{d800}")},
        {QString::fromUtf8("\xf0\x9f\x8e\xac é"), QString::fromUtf8("\xf0\x9f\x8e\xac é")},
    };
    for (const Row &row : rows)
        EXPECT_EQ(ServerLog::escaped(row.text), row.line);
}

TEST_F(ServerLogTest, WritesAMessageAsOneLineWithItsKind)
{
    {
        ServerLog log(m_path);
        ASSERT_TRUE(log.isOpen());
        log.write(QtWarningMsg, QStringLiteral("[rpc] first\nsecond"));
    }
    const QStringList lines = linesOf(m_path);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines.first().endsWith(QStringLiteral(" W [rpc] first\\nsecond")))
        << qPrintable(lines.first());
}

TEST_F(ServerLogTest, AppendsToWhatARunBeforeHasWritten)
{
    for (int run = 0; run < 2; ++run)
        ServerLog(m_path).write(QtInfoMsg, QStringLiteral("run"));
    EXPECT_EQ(linesOf(m_path).size(), 2);
}

TEST_F(ServerLogTest, TurnsOverAtItsLimitAndKeepsOnePredecessor)
{
    constexpr qint64 limit = 2000;
    ServerLog log(m_path, limit);
    for (int i = 0; i < 200; ++i)
        log.write(QtInfoMsg, QStringLiteral("message %1").arg(i));
    EXPECT_LE(QFileInfo(m_path).size(), limit);
    EXPECT_LE(QFileInfo(m_path + QStringLiteral(".1")).size(), limit);
    EXPECT_GT(QFileInfo(m_path + QStringLiteral(".1")).size(), limit / 2);
    EXPECT_TRUE(linesOf(m_path).last().endsWith(QStringLiteral("message 199")));
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files).size(), 2);
}

TEST_F(ServerLogTest, CutsAnEndlessMessage)
{
    ServerLog(m_path).write(QtInfoMsg, QString(1000000, QLatin1Char('x')));
    EXPECT_LT(QFileInfo(m_path).size(), ServerLog::LongestLine + 100);
}

TEST_F(ServerLogTest, ReceivesTheMessagesOfAllThreadsWhileInstalled)
{
    {
        ServerLog log(m_path);
        log.install();
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t)
            threads.emplace_back([] {
                for (int i = 0; i < 100; ++i)
                    qInfo("[test] %d", i);
            });
        for (std::thread &thread : threads)
            thread.join();
    }
    qInfo("[test] after its end");
    const QStringList lines = linesOf(m_path);
    EXPECT_EQ(lines.size(), 400);
    for (const QString &line : lines)
        EXPECT_TRUE(line.contains(QStringLiteral(" I [test] "))) << qPrintable(line);
}

TEST_F(ServerLogTest, AFolderThatIsMissingLeavesItClosedAndHarmless)
{
    ServerLog log(m_folder.filePath(QStringLiteral("missing/server.log")));
    EXPECT_FALSE(log.isOpen());
    log.write(QtInfoMsg, QStringLiteral("lost"));
}
