#include "core/LogHandler.h"

#include "core/ApplicationInfoManager.h"
#include "support/TestLog.h"

#include <QDebug>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace {

class LogHandlerTest : public testing::Test {
protected:
    LogHandlerTest()
    {
        installLogHandler();
        // Whatever an earlier test has written.
        qInfo("begin");
        m_start = QFile(m_file).size();
    }
    ~LogHandlerTest() override { TestLog::install(); }

    QStringList lines() const
    {
        QFile file(m_file);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        file.seek(m_start);
        QStringList list = QString::fromUtf8(file.readAll()).split('\n');
        EXPECT_EQ(list.takeLast(), "");
        return list;
    }

    // Without the time.
    static QString textOf(const QString &line)
    {
        static const QRegularExpression form("^\\[\\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d\\] : ");
        EXPECT_TRUE(form.match(line).hasMatch()) << qPrintable(line);
        return QString(line).remove(form);
    }

    QString m_file{ApplicationInfoManager::instance()->logFile()};
    qint64 m_start{0};
};

TEST_F(LogHandlerTest, OnlyInfoMessagesAreKept)
{
    qDebug() << "debug";
    qInfo() << "[Process] kept";
    qWarning() << "warning";
    qCritical() << "critical";
    ASSERT_EQ(lines().size(), 1);
    EXPECT_EQ(textOf(lines().first()), "[Process] kept");
}

TEST_F(LogHandlerTest, TenThreadsAtOnceTearNoLine)
{
    constexpr int kThreads = 10;
    constexpr int kLines = 300;
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([t] {
            const std::string tail(static_cast<std::size_t>(20 + t * 30), static_cast<char>('a' + t));
            for (int i = 0; i < kLines; ++i) {
                if (i % 2)
                    qInfo("%d %d %s", t, i, tail.c_str());
                else
                    logPrintf("%d %d %s\n", t, i, tail.c_str());
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    const QStringList written = lines();
    ASSERT_EQ(written.size(), kThreads * kLines);
    std::vector<int> next(kThreads, 0);
    for (const QString &line : written) {
        const QStringList parts = textOf(line).split(' ');
        ASSERT_EQ(parts.size(), 3) << qPrintable(line);
        const int t = parts[0].toInt();
        EXPECT_EQ(parts[1].toInt(), next[t]++) << "each thread's lines in their order";
        EXPECT_EQ(parts[2], QString(20 + t * 30, QLatin1Char(char('a' + t))));
    }
}

TEST_F(LogHandlerTest, PrintfTextsLoseOneLineEndAndKeepTheirPercentSigns)
{
    logPrintf("%s %d", "plain", 5);
    logPrintf("line end\n");
    logPrintf("two line ends\n\n");
    logPrintf("carriage\r\n");
    logPrintf("%s", "100% %s %n done");
    logPrintf("%s", "");
    EXPECT_EQ(lines().size(), 7);
    const QStringList written = lines();
    EXPECT_EQ(textOf(written[0]), "plain 5");
    EXPECT_EQ(textOf(written[1]), "line end");
    EXPECT_EQ(textOf(written[2]), "two line ends");
    EXPECT_EQ(written[3], "");
    EXPECT_EQ(textOf(written[4]), "carriage");
    EXPECT_EQ(textOf(written[5]), "100% %s %n done");
    EXPECT_EQ(textOf(written[6]), "");
}

TEST_F(LogHandlerTest, PrintfTextsAreCutAtTheBuffer)
{
    const std::string longText(30000, 'x');
    logPrintf("%s", longText.c_str());
    ASSERT_EQ(lines().size(), 1);
    EXPECT_EQ(textOf(lines().first()).size(), 10239);
}

} // namespace
