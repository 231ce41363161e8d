#include "engine/EngineLog.h"

#include "MediaClips.h"

#include <QDir>

#include <gtest/gtest.h>

#include <thread>

namespace {

void writeTo(EngineLog &log, const char *format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    log.write(format, arguments);
    va_end(arguments);
}

TEST(EngineLog, MakesItsFolderAndWritesLinesWithATime)
{
    QTemporaryDir folder;
    const QString place = folder.filePath(QString::fromUtf8("tiefer/ö"));
    EngineLog log;
    ASSERT_TRUE(log.open(place.toStdString()));
    writeTo(log, "[Test] %d %s", 7, "seven");
    log.close();
    const QString text = QString::fromUtf8(MediaClips::contentsOf(place + "/Orbix.log"));
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} "
                                                  "\\[Test\\] 7 seven\\n$"))
                    .match(text)
                    .hasMatch())
        << qPrintable(text);
}

TEST(EngineLog, LineBreaksInATextDoNotForgeLines)
{
    QTemporaryDir folder;
    EngineLog log;
    ASSERT_TRUE(log.open(folder.path().toStdString()));
    writeTo(log, "%s", "one\ntwo\r\nthree");
    log.close();
    EXPECT_EQ(MediaClips::contentsOf(folder.filePath("Orbix.log")).count('\n'), 1);
}

TEST(EngineLog, KeepsItsNewerHalfAtTheCap)
{
    QTemporaryDir folder;
    constexpr int Cap = 4096;
    EngineLog log;
    ASSERT_TRUE(log.open(folder.path().toStdString(), Cap));
    for (int i = 0; i < 500; ++i)
        writeTo(log, "line %d", i);
    log.close();
    const QByteArray text = MediaClips::contentsOf(folder.filePath("Orbix.log"));
    EXPECT_LE(text.size(), Cap);
    EXPECT_GE(text.size(), Cap / 4);
    EXPECT_TRUE(text.endsWith("line 499\n"));
    EXPECT_FALSE(text.contains("line 0\n"));
    EXPECT_TRUE(text.startsWith("20")) << "the first line is whole";
}

TEST(EngineLog, AnOldLogAboveTheCapIsCutAtOpening)
{
    QTemporaryDir folder;
    ASSERT_TRUE(MediaClips::writeFile(folder.filePath("Orbix.log"), QByteArray(1000, 'x') + "\nlast\n"));
    EngineLog log;
    ASSERT_TRUE(log.open(folder.path().toStdString(), 500));
    log.close();
    EXPECT_EQ(MediaClips::contentsOf(folder.filePath("Orbix.log")), QByteArray("last\n"));
}

TEST(EngineLog, AFolderThatCannotBeWrittenLeavesTheEngineWithoutALog)
{
    QTemporaryDir folder;
    ASSERT_TRUE(MediaClips::writeFile(folder.filePath("file"), "x"));
    EngineLog log;
    EXPECT_FALSE(log.open(folder.filePath("file/below").toStdString()));
    EXPECT_FALSE(log.open(""));
    writeTo(log, "goes nowhere");
}

TEST(EngineLog, LinesOfManyThreadsStayWhole)
{
    QTemporaryDir folder;
    EngineLog log;
    ASSERT_TRUE(log.open(folder.path().toStdString()));
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&log] {
            for (int line = 0; line < 200; ++line)
                writeTo(log, "%s", "abcdefghijklmnopqrstuvwxyz");
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    log.close();
    QByteArrayList lines = MediaClips::contentsOf(folder.filePath("Orbix.log")).split('\n');
    EXPECT_TRUE(lines.takeLast().isEmpty());
    EXPECT_EQ(lines.size(), 800);
    for (const QByteArray &line : lines)
        EXPECT_TRUE(line.endsWith(" abcdefghijklmnopqrstuvwxyz"));
}

} // namespace
