#include "core/CLogManager.h"

#include <QDate>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class CLogManagerTest : public testing::Test {
protected:
    QByteArray content() const
    {
        QFile file(m_file);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    // Numbered lines of ten bytes.
    void fill(qint64 size) const
    {
        QByteArray bytes;
        bytes.reserve(int(size) + 10);
        for (int i = 0; bytes.size() < size; ++i)
            bytes += QByteArray::number(i).rightJustified(9, '0') + '\n';
        bytes.truncate(int(size));
        QFile file(m_file);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), size);
    }

    QTemporaryDir m_folder;
    QString m_file{m_folder.filePath("player.log")};
};

TEST_F(CLogManagerTest, ARunBeginsWithTheDateAndLinesHaveTheirForm)
{
    {
        CLogManager log(m_file);
        log.writeLine(":", QString::fromUtf8("[Process] 100%1 %2 ärger"));
    }
    const QStringList lines = QString::fromUtf8(content()).split('\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0], QString("-------------------------%1----------------------------")
                            .arg(QDate::currentDate().toString("yyyy-MM-dd")));
    static const QRegularExpression form(
        QString::fromUtf8("^\\[\\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d\\] : \\[Process\\] 100%1 %2 ärger$"));
    EXPECT_TRUE(form.match(lines[1]).hasMatch()) << qPrintable(lines[1]);
}

TEST_F(CLogManagerTest, EachLineIsInTheFileAtOnceAndRunsFollowEachOther)
{
    CLogManager first(m_file);
    first.writeLine(":", "one");
    EXPECT_TRUE(content().endsWith(": one\n"));
    CLogManager second(m_file);
    second.writeLine(":", "two");
    EXPECT_TRUE(content().contains(": one\n"));
    EXPECT_TRUE(content().endsWith(": two\n"));
}

TEST_F(CLogManagerTest, AFileOfExactlyTheLimitIsHalved)
{
    fill(CLogManager::SizeLimit);
    const QByteArray before = content();
    CLogManager log(m_file);
    EXPECT_TRUE(content().startsWith(before.mid(before.size() / 2) + "-----")) << "the newer half survives";
    EXPECT_LT(content().size(), before.size() / 2 + 100);
}

TEST_F(CLogManagerTest, OneByteLessIsLeftAlone)
{
    fill(CLogManager::SizeLimit - 1);
    const QByteArray before = content();
    CLogManager log(m_file);
    EXPECT_TRUE(content().startsWith(before));
}

TEST_F(CLogManagerTest, AMuchLargerFileOfOddSizeIsHalvedToo)
{
    fill(CLogManager::SizeLimit * 2 + 7);
    const QByteArray before = content();
    CLogManager log(m_file);
    EXPECT_TRUE(content().startsWith(before.mid(before.size() / 2) + "-----"));
}

TEST_F(CLogManagerTest, AFileThatCanNotBeOpenedLosesItsLinesSilently)
{
    CLogManager log(m_folder.filePath("no/such/folder/player.log"));
    log.writeLine(":", "lost");
    CLogManager folder(m_folder.path());
    folder.writeLine(":", "lost");
    EXPECT_FALSE(QFile::exists(m_file));
}

} // namespace
