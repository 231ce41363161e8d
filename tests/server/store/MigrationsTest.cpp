#include "store/Migrations.h"

#include "store/Connection.h"
#include "store/Schema.h"

#include "support/TestLog.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class MigrationsTest : public testing::Test {
protected:
    std::unique_ptr<Connection> open()
    {
        ConnectionSettings settings;
        settings.name = m_folder.filePath("library.db");
        return std::make_unique<Connection>(settings, Connection::Access::Write);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(MigrationsTest, AnOldFileIsBroughtUpToDateWithWhatIsInIt)
{
    {
        const auto old = open();
        ASSERT_TRUE(Migrations(Schema::steps().mid(0, 1)).apply(*old));
        ASSERT_EQ(Migrations::version(*old), 1);
        ASSERT_TRUE(old->execute("INSERT INTO roots VALUES (7, 1, '/films', '', 1)"));
    }
    const auto connection = open();
    ASSERT_TRUE(Migrations(Schema::steps()).apply(*connection));
    EXPECT_EQ(Migrations::version(*connection), Schema::steps().size());
    Statement read = connection->prepare("SELECT id FROM roots");
    ASSERT_TRUE(read.run() && read.next());
    EXPECT_EQ(read.integer(0), 7);
    EXPECT_TRUE(connection->prepare("SELECT COUNT(*) FROM songs").run());
}

TEST_F(MigrationsTest, AFailureInTheMiddleOfAStepLeavesTheStepBefore)
{
    const auto connection = open();
    QVector<Migration> steps = Schema::steps();
    steps << Migration{"bad", {"CREATE TABLE half (id INTEGER)", "CREATE NONSENSE"}};
    TestLog::expectWarning(QRegularExpression("statement refused|step .* failed"));
    EXPECT_FALSE(Migrations(steps).apply(*connection));
    EXPECT_EQ(Migrations::version(*connection), Schema::steps().size());
    TestLog::expectWarning(QRegularExpression("cannot prepare"));
    EXPECT_FALSE(connection->prepare("SELECT * FROM half").run());
    // The next program, with the step mended, goes on from there.
    steps.last().statements = QStringList{"CREATE TABLE half (id INTEGER)"};
    EXPECT_TRUE(Migrations(steps).apply(*connection));
    EXPECT_EQ(Migrations::version(*connection), steps.size());
}

TEST_F(MigrationsTest, AFileOfALaterProgramIsLeftAlone)
{
    const auto connection = open();
    ASSERT_TRUE(Migrations(Schema::steps()).apply(*connection));
    TestLog::expectWarning(QRegularExpression("of a later program"));
    EXPECT_FALSE(Migrations(Schema::steps().mid(0, 1)).apply(*connection));
    EXPECT_EQ(Migrations::version(*connection), Schema::steps().size());
}

TEST_F(MigrationsTest, NothingIsDoneTwice)
{
    const auto connection = open();
    ASSERT_TRUE(Migrations(Schema::steps()).apply(*connection));
    EXPECT_TRUE(Migrations(Schema::steps()).apply(*connection));
}
