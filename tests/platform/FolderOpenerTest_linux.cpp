#include "platform/FolderOpener.h"

#include "support/Eventually.h"
#include "support/Sanitizers.h"

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <mutex>

namespace {

constexpr int kPatienceMs = 10000;
const QString kBusName = QStringLiteral("folder-opener-test");

class FakeFileManager final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public slots:
    void ShowItems(const QStringList &uris, const QString &startupId)
    {
        shown += uris;
        EXPECT_TRUE(startupId.isEmpty());
    }
};

// What was opened in the file manager's stead, on whichever thread.
class OpenedFolders {
public:
    FolderOpener::OpenFolder opener()
    {
        return [this](const QString &folder) {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_folders << folder;
            return true;
        };
    }
    QStringList all()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_folders;
    }

private:
    std::mutex m_mutex;
    QStringList m_folders;
};

// A session bus of the test's own.
class FolderOpenerTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (Sanitizers::WatchesThreads)
            GTEST_SKIP() << Sanitizers::BusThread;
        m_daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address",
                                       "--address=unix:path=" + folder.filePath("bus")});
        ASSERT_TRUE(m_daemon.waitForReadyRead(kPatienceMs));
        address = QString::fromLatin1(m_daemon.readLine()).trimmed();
    }
    void TearDown() override
    {
        if (m_daemon.state() == QProcess::NotRunning)
            return;
        QDBusConnection::disconnectFromBus(kBusName);
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }
    void offerFileManager()
    {
        QDBusConnection bus = QDBusConnection::connectToBus(address, kBusName);
        ASSERT_TRUE(bus.isConnected());
        ASSERT_TRUE(
            bus.registerObject("/org/freedesktop/FileManager1", &manager, QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(bus.registerService("org.freedesktop.FileManager1"));
    }
    QString makeFile(const QString &name)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    QTemporaryDir folder;
    QString address;
    FakeFileManager manager;
    OpenedFolders opened;

private:
    QProcess m_daemon;
};

} // namespace

TEST_F(FolderOpenerTest, TheFileManagerIsAskedToSelectTheFile)
{
    offerFileManager();
    const QString path = makeFile(QStringLiteral("a film, 50% #1 \u732b.mkv"));
    FolderOpener(address, opened.opener()).show(QString());
    FolderOpener opener(address, opened.opener());
    opener.show(path);
    ASSERT_EVENTUALLY(manager.shown.size() == 1);
    EXPECT_EQ(QUrl::fromEncoded(manager.shown.first().toLatin1()).toLocalFile(), path);
    EXPECT_TRUE(opened.all().isEmpty());
}

TEST_F(FolderOpenerTest, WithoutAFileManagerTheFolderIsOpened)
{
    const QString path = makeFile(QStringLiteral("a.mkv"));
    FolderOpener opener(address, opened.opener());
    opener.show(path);
    ASSERT_EVENTUALLY(opened.all().size() == 1);
    EXPECT_EQ(opened.all().first(), folder.path());
}

TEST_F(FolderOpenerTest, WithoutABusTheFolderIsOpened)
{
    FolderOpener opener(QString(), opened.opener());
    opener.show(makeFile(QStringLiteral("a.mkv")));
    ASSERT_EVENTUALLY(opened.all().size() == 1);
    EXPECT_EQ(opened.all().first(), folder.path());
}

TEST_F(FolderOpenerTest, OfAFileThatIsGoneTheNearestFolderIsOpened)
{
    offerFileManager();
    FolderOpener opener(address, opened.opener());
    opener.show(folder.filePath(QStringLiteral("never/was/here.mkv")));
    ASSERT_EVENTUALLY(opened.all().size() == 1);
    EXPECT_EQ(opened.all().first(), folder.path());
    EXPECT_TRUE(manager.shown.isEmpty());
}

#include "FolderOpenerTest_linux.moc"
