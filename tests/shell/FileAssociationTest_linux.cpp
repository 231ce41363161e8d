#include "DesktopSandbox_linux.h"

#include "core/CommonInfoManager.h"
#include "shell/DesktopEntries_linux.h"
#include "shell/FileAssociation.h"
#include "support/TestLog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

#include <thread>

namespace {

constexpr char kProgramEntry[] = "data/applications/quorin-player-6.desktop";
constexpr char kAutoplayEntry[] = "data/applications/quorin-player-6-autoplay.desktop";
constexpr char kMenu[] = "data/kio/servicemenus/quorin-player-6.desktop";

class FileAssociationTest : public testing::Test {
protected:
    QByteArray list() const { return m_sandbox.content(DesktopSandbox::listName()); }

    static bool logged(const QString &part) { return !TestLog::infoLines().filter(part).isEmpty(); }

    DesktopSandbox m_sandbox;
};

TEST_F(FileAssociationTest, ExtensionsComeInAnyForm)
{
    for (const char *form : {"mkv", ".mkv", "*.mkv", "MKV", " *.Mkv "})
        EXPECT_EQ(FileAssociation::extensionOf(form), "mkv") << form;
    EXPECT_EQ(FileAssociation::extensionOf("*.dvr-ms"), "dvr-ms");
    for (const char *form : {"", "*", ".", "*.", "a.b", "../mkv", "a b", "m\\kv", "*.mkv;*.avi", "\xC3\xA4"})
        EXPECT_EQ(FileAssociation::extensionOf(QString::fromUtf8(form)), "") << form;
    EXPECT_EQ(FileAssociation::extensionOf(QString(100000, 'a')), "");
}

TEST_F(FileAssociationTest, KnownIsWhatThePlayerPlays)
{
    const QStringList extensions = CommonInfoManager::playableExtensions();
    for (const QString &extension : extensions)
        EXPECT_TRUE(FileAssociation::isKnown("*." + extension)) << qPrintable(extension);
    for (const char *unknown : {"srt", "txt", "exe", "", "*.", "mkvv"})
        EXPECT_FALSE(FileAssociation::isKnown(unknown)) << unknown;
}

TEST_F(FileAssociationTest, AssociatedExtensionsOpenWithThePlayerUntilTheyAreRestored)
{
    m_sandbox.write(DesktopSandbox::listName(), "[Default Applications]\nvideo/x-matroska=other.desktop;\n");
    EXPECT_EQ(FileAssociation::associatedExtensions(), QStringList());
    EXPECT_TRUE(FileAssociation::AssociateExtensions({"*.mkv", ".MP3"}));
    EXPECT_EQ(FileAssociation::associatedExtensions(), (QStringList{"mkv", "mp3"}));
    EXPECT_TRUE(FileAssociation::IsAssociated("mkv"));
    EXPECT_TRUE(FileAssociation::IsAssociated("*.MP3"));
    EXPECT_FALSE(FileAssociation::IsAssociated("avi"));
    EXPECT_TRUE(list().contains("\nvideo/x-matroska=quorin-player-6.desktop;other.desktop;\n"));
    EXPECT_TRUE(FileAssociation::RestoreExtensions({"mkv", "mp3"}));
    EXPECT_EQ(FileAssociation::associatedExtensions(), QStringList());
    EXPECT_EQ(list(), "[Default Applications]\nvideo/x-matroska=other.desktop;\n");
}

TEST_F(FileAssociationTest, TheListNamesAnEntryThatIsThere)
{
    EXPECT_TRUE(FileAssociation::AssociateExtensions({"mkv"}));
    EXPECT_TRUE(m_sandbox.has(kProgramEntry));
}

TEST_F(FileAssociationTest, AChangeOfBothKindsGoesInOneCall)
{
    EXPECT_TRUE(FileAssociation::AssociateExtensions({"mkv"}));
    EXPECT_TRUE(FileAssociation::ChangeExtensions({"avi", "avi"}, {"mkv"}));
    EXPECT_EQ(FileAssociation::associatedExtensions(), QStringList{"avi"});
    EXPECT_TRUE(FileAssociation::ChangeExtensions({}, {}));
}

TEST_F(FileAssociationTest, AnUnknownExtensionIsLoggedAndLeftOut)
{
    EXPECT_TRUE(FileAssociation::AssociateExtensions({"nonsense", "mkv"}));
    EXPECT_TRUE(logged("unknown extension: nonsense"));
    EXPECT_EQ(FileAssociation::associatedExtensions(), QStringList{"mkv"});
    const QByteArray before = list();
    EXPECT_FALSE(FileAssociation::AssociateExtensions({"nonsense", "*.b\nc"}));
    EXPECT_FALSE(FileAssociation::IsAssociated("nonsense"));
    EXPECT_TRUE(FileAssociation::RestoreExtensions({"nonsense"}));
    EXPECT_FALSE(FileAssociation::RestoreExtensions({"../.."}));
    EXPECT_EQ(list(), before);
}

TEST_F(FileAssociationTest, AnExtensionWithoutATypeIsLoggedAndTakesNothingElse)
{
    ASSERT_TRUE(FileAssociation::isKnown("dat"));
    EXPECT_FALSE(FileAssociation::AssociateExtensions({"dat"}));
    EXPECT_TRUE(logged("no type of media for dat"));
    EXPECT_TRUE(FileAssociation::AssociateExtensions({"dat", "mkv"}));
    EXPECT_EQ(FileAssociation::associatedExtensions(), QStringList{"mkv"});
    EXPECT_FALSE(list().contains("octet-stream"));
}

TEST_F(FileAssociationTest, OnlyTypesThatThePlayerOffersAreTaken)
{
    EXPECT_EQ(DesktopEntries::typesOf("mkv"), QStringList{"video/x-matroska"});
    // Translations have this suffix too, music of trackers that one.
    EXPECT_EQ(DesktopEntries::typesOf("ts"), QStringList{"video/mp2t"});
    EXPECT_EQ(DesktopEntries::typesOf("mod"), QStringList());
    EXPECT_EQ(DesktopEntries::discTypes(), (QStringList{"x-content/video-bluray", "x-content/video-dvd"}));
}

TEST_F(FileAssociationTest, AllThatThePlayerPlaysCanBeAssociatedAndGivenBack)
{
    const QByteArray before = "[Default Applications]\nvideo/mp4=other.desktop;\naudio/mpeg=music.desktop;\n";
    m_sandbox.write(DesktopSandbox::listName(), before);
    EXPECT_TRUE(FileAssociation::AssociateExtensions(CommonInfoManager::playableNameFilters()));
    const QStringList associated = FileAssociation::associatedExtensions();
    EXPECT_GT(associated.size(), 50);
    EXPECT_TRUE(FileAssociation::RestoreExtensions(associated));
    EXPECT_EQ(list(), before);
}

TEST_F(FileAssociationTest, AListThatCannotBeWrittenIsAFailureAndNothingChanges)
{
    m_sandbox.write(DesktopSandbox::listName(), "[Default Applications]\n");
    const QString file = m_sandbox.path(DesktopSandbox::listName());
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner));
    EXPECT_FALSE(FileAssociation::AssociateExtensions({"mkv"}));
    EXPECT_FALSE(FileAssociation::RegisterAutoplay(true));
    EXPECT_TRUE(logged("it is read-only"));
    EXPECT_EQ(FileAssociation::associatedExtensions(), QStringList());
    EXPECT_EQ(list(), "[Default Applications]\n");
    ASSERT_TRUE(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner));
}

TEST_F(FileAssociationTest, AnEntryThatCannotBeWrittenIsAFailureAndTheListStays)
{
    m_sandbox.write("data/applications", "a file where the folder should be");
    EXPECT_FALSE(FileAssociation::AssociateExtensions({"mkv"}));
    EXPECT_FALSE(FileAssociation::RegisterApplication());
    EXPECT_FALSE(FileAssociation::RegisterAutoplay(true));
    EXPECT_FALSE(m_sandbox.has(DesktopSandbox::listName()));
    EXPECT_TRUE(logged("[FileAss] write"));
}

TEST_F(FileAssociationTest, RegisteringWritesTheEntryWithItsActionAndTheVerb)
{
    EXPECT_TRUE(FileAssociation::RegisterApplication());
    const QByteArray command = "Exec=\"" + QCoreApplication::applicationFilePath().toUtf8() + "\" %f";
    const QByteArray entry = m_sandbox.content(kProgramEntry);
    EXPECT_EQ(entry.count(command), 2);
    EXPECT_TRUE(entry.contains("TryExec=" + QCoreApplication::applicationFilePath().toUtf8()));
    EXPECT_TRUE(entry.contains("video/x-matroska;"));
    EXPECT_TRUE(entry.contains("[Desktop Action PlayWithQuorinSix]\nName=Play with Quorin Player 6\n"));
    const QByteArray menu = m_sandbox.content(kMenu);
    EXPECT_TRUE(menu.contains("MimeType=inode/directory;"));
    EXPECT_TRUE(menu.contains("Name=Play with Quorin Player 6\n"));
    EXPECT_TRUE(menu.contains(command));
    EXPECT_TRUE(QFileInfo(m_sandbox.path(kMenu)).isExecutable());

    EXPECT_TRUE(FileAssociation::UnregisterApplication());
    EXPECT_FALSE(m_sandbox.has(kProgramEntry));
    EXPECT_FALSE(m_sandbox.has(kMenu));
    EXPECT_TRUE(FileAssociation::UnregisterApplication());
}

TEST_F(FileAssociationTest, TheDesktopsOwnCheckFindsNothingInTheEntries)
{
    ASSERT_TRUE(FileAssociation::RegisterApplication());
    ASSERT_TRUE(FileAssociation::RegisterAutoplay(true));
    for (const char *entry : {kProgramEntry, kAutoplayEntry}) {
        QProcess check;
        check.setProcessChannelMode(QProcess::MergedChannels);
        check.start("desktop-file-validate", {m_sandbox.path(entry)});
        ASSERT_TRUE(check.waitForFinished()) << qPrintable(check.errorString());
        EXPECT_EQ(check.exitCode(), 0);
        EXPECT_EQ(check.readAll(), QByteArray());
    }
}

TEST_F(FileAssociationTest, AMachinesEntryThatWorksIsEnough)
{
    m_sandbox.write("machine/applications/quorin-player-6.desktop",
                    "[Desktop Entry]\nType=Application\nName=x\nTryExec=sh\nExec=sh\n");
    EXPECT_TRUE(FileAssociation::RegisterApplication());
    EXPECT_FALSE(m_sandbox.has(kProgramEntry));
    // One whose program is gone is not.
    m_sandbox.write("machine/applications/quorin-player-6.desktop",
                    "[Desktop Entry]\nType=Application\nName=x\nTryExec=no-such-program\nExec=x\n");
    EXPECT_TRUE(FileAssociation::RegisterApplication());
    EXPECT_TRUE(m_sandbox.has(kProgramEntry));
}

TEST_F(FileAssociationTest, AutoplayTakesTheDiscsAndGivesThemBack)
{
    const QByteArray before = "[Default Applications]\nx-content/video-dvd=other.desktop;\n";
    m_sandbox.write(DesktopSandbox::listName(), before);
    EXPECT_TRUE(FileAssociation::RegisterAutoplay(true));
    EXPECT_TRUE(m_sandbox.content(kAutoplayEntry).contains("x-content/video-dvd;"));
    EXPECT_TRUE(list().contains("x-content/video-dvd=quorin-player-6-autoplay.desktop;other.desktop;"));
    EXPECT_TRUE(list().contains("x-content/video-bluray=quorin-player-6-autoplay.desktop;"));
    EXPECT_EQ(FileAssociation::associatedExtensions(), QStringList());
    EXPECT_TRUE(FileAssociation::RegisterAutoplay(false));
    EXPECT_FALSE(m_sandbox.has(kAutoplayEntry));
    EXPECT_EQ(list(), before);
    EXPECT_TRUE(FileAssociation::RegisterAutoplay(false));
}

TEST_F(FileAssociationTest, CallsOfSeveralThreadsGoOneAfterTheOther)
{
    const QStringList extensions{"mkv", "avi", "mp3", "flac"};
    std::vector<std::thread> threads;
    for (const QString &extension : extensions)
        threads.emplace_back([extension] {
            EXPECT_TRUE(FileAssociation::AssociateExtensions({extension}));
            EXPECT_TRUE(FileAssociation::IsAssociated(extension));
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(FileAssociation::associatedExtensions().size(), extensions.size());
}

} // namespace
