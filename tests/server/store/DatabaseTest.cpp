#include "store/Database.h"

#include "base/DataFolder.h"
#include "base/ServerConfiguration.h"
#include "store/LibraryRoots.h"

#include "support/TestLog.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>

namespace {

class DatabaseTest : public testing::Test {
protected:
    bool open()
    {
        m_database.reset();
        m_database = std::make_unique<Database>(m_places, ServerConfiguration());
        return m_database->open();
    }

    void addFolder(const QString &path)
    {
        LibraryRoots roots(*m_database);
        EXPECT_GT(roots.addFolder(roots.videoLibraryId(), path, {}), 0);
    }

    QStringList folders()
    {
        QStringList paths;
        const QVector<RootFolder> rows = LibraryRoots(*m_database).folders(1);
        for (const RootFolder &row : rows)
            paths << row.path;
        return paths;
    }

    // Zeroes over the middle of the file, where the pages of the tables are.
    void damage()
    {
        m_database.reset();
        QFile file(m_places.databasePath());
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.seek(4096));
        const QByteArray nothing(static_cast<int>(file.size() - 4096), '\x7f');
        ASSERT_EQ(file.write(nothing), nothing.size());
    }

    QStringList setAside() const
    {
        return QDir(m_places.path()).entryList({"library.db.damaged-*"}, QDir::Files);
    }

    QTemporaryDir m_folder;
    DataFolder m_places{m_folder.path()};
    std::unique_ptr<Database> m_database;
};

} // namespace

TEST_F(DatabaseTest, AnswersOfAChangeAreItsTransactionsFate)
{
    ASSERT_TRUE(open());
    const QString insert = "INSERT INTO counters (name, value) VALUES ('a', 1)";
    EXPECT_FALSE(m_database->write(Database::Urgency::User, [&](Connection &connection) {
        EXPECT_TRUE(connection.execute(insert));
        return false;
    }));
    TestLog::expectWarning(QRegularExpression("a change failed"));
    EXPECT_FALSE(m_database->write(Database::Urgency::User, [&](Connection &connection) -> bool {
        EXPECT_TRUE(connection.execute(insert));
        throw std::runtime_error("thrown");
    }));
    EXPECT_FALSE(m_database->write(Database::Urgency::Scan, [&](Connection &connection) -> bool {
        EXPECT_TRUE(connection.execute(insert));
        throw 5;
    }));
    EXPECT_TRUE(m_database->write(Database::Urgency::Scan,
                                  [&](Connection &connection) { return connection.execute(insert); }));
}

TEST_F(DatabaseTest, AChangeWithinAChangeIsRefusedInsteadOfWaitingForItself)
{
    ASSERT_TRUE(open());
    TestLog::expectWarning(QRegularExpression("where none can be made"));
    EXPECT_TRUE(m_database->write(Database::Urgency::User, [&](Connection &) {
        return !m_database->write(Database::Urgency::User, [](Connection &) { return true; });
    }));
}

TEST_F(DatabaseTest, ReadersCannotWriteAndGoWithTheirThread)
{
    ASSERT_TRUE(open());
    const QStringList before = QSqlDatabase::connectionNames();
    std::thread([&] {
        EXPECT_TRUE(m_database->reader().isOpen());
        EXPECT_EQ(QSqlDatabase::connectionNames().size(), before.size() + 1);
    }).join();
    EXPECT_EQ(QSqlDatabase::connectionNames().size(), before.size());
    TestLog::expectWarning(QRegularExpression("statement refused"));
    EXPECT_FALSE(m_database->reader().execute("DELETE FROM roots"));
}

TEST_F(DatabaseTest, AWholeFileIsBackedUpAtTheStart)
{
    ASSERT_TRUE(open());
    addFolder("/one");
    ASSERT_TRUE(open());
    addFolder("/two");
    m_database.reset();
    ASSERT_TRUE(QFile::remove(m_places.databasePath()));
    TestLog::expectWarning(QRegularExpression("backup was put in place"));
    ASSERT_TRUE(open());
    EXPECT_EQ(folders(), QStringList{"/one"});
}

TEST_F(DatabaseTest, ADamagedFileIsSetAsideAndTheBackupTakesItsPlace)
{
    ASSERT_TRUE(open());
    addFolder("/one");
    ASSERT_TRUE(open());
    damage();
    TestLog::expectWarning(QRegularExpression("check of the database|set aside|backup was put in place"));
    ASSERT_TRUE(open());
    EXPECT_EQ(folders(), QStringList{"/one"});
    EXPECT_EQ(setAside().size(), 1);
    addFolder("/two");
    ASSERT_TRUE(open());
    EXPECT_EQ(folders(), (QStringList{"/one", "/two"}));
}

TEST_F(DatabaseTest, WithoutAWholeBackupANewDatabaseBegins)
{
    for (const char *name : {"library.db", "library.backup.db"}) {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(8192, 'x'));
    }
    TestLog::expectWarning(QRegularExpression("check of the database|set aside|backup is of no use"));
    ASSERT_TRUE(open());
    EXPECT_TRUE(folders().isEmpty());
    EXPECT_EQ(setAside().size(), 1);
    addFolder("/one");
}

TEST_F(DatabaseTest, AFolderInPlaceOfTheFileIsNoDamage)
{
    ASSERT_TRUE(QDir().mkpath(m_places.databasePath()));
    TestLog::expectWarning(QRegularExpression("check of the database|cannot be opened"));
    EXPECT_FALSE(open());
    EXPECT_TRUE(QFileInfo(m_places.databasePath()).isDir());
    EXPECT_TRUE(setAside().isEmpty());
}

TEST_F(DatabaseTest, AServerThatIsNotThereIsAFailure)
{
    ServerConfiguration configuration;
    configuration.databaseDriver = "QPSQL";
    configuration.databaseHost = m_folder.path();
    configuration.databaseName = "none";
    Database database(m_places, configuration);
    TestLog::expectWarning(QRegularExpression("cannot open the database|cannot be brought up to date"));
    EXPECT_FALSE(database.open());
}
