#include "scan/FolderWalk.h"
#include "scan/DirectoryListing.h"
#include "scan/FolderPlan.h"
#include "support/SampleClips.h"
#include "support/TestLog.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class FolderWalkTest : public testing::Test {
protected:
    QString path(const QString &name) const { return m_tree.path() + "/" + name; }
    void file(const QString &name) const { SampleClips::write(path(name), "x"); }

    // Folders with their files, "A: one two", in the order of the walk.
    QStringList walk(FolderWalk::Result expected = FolderWalk::Result::Complete)
    {
        QStringList lines;
        FolderWalk walk(m_cancelled);
        const auto result =
            walk.walk(m_tree.path(), {}, [&](const std::shared_ptr<const WalkedFolder> &folder) {
                QStringList names;
                for (const FolderEntry &entry : folder->entries) {
                    if (!entry.isFolder)
                        names << entry.name;
                }
                lines << folder->path.mid(m_tree.path().size() + 1) + ":" + names.join(' ');
                return true;
            });
        EXPECT_EQ(result, expected);
        return lines;
    }

    QTemporaryDir m_tree;
    std::atomic<bool> m_cancelled{false};
};

TEST_F(FolderWalkTest, GoesByNameAndParentsFirst)
{
    for (const char *name : {"b/2", "b/1", "a/c/3", "a/z", "0"})
        file(name);
    EXPECT_EQ(walk(), QStringList({":0", "a:z", "a/c:3", "b:1 2"}));
}

TEST_F(FolderWalkTest, LeavesOutWhatIsHiddenOrMarked)
{
    for (const char *name : {".hidden", ".git/x", "a/1", "n/.nomedia", "n/deep/1", "i/.ignore", "i/2",
                             "@eaDir/1", "lost+found/1", "$RECYCLE.BIN/1"})
        file(name);
    EXPECT_EQ(walk(), QStringList({":", "a:1"}));
}

TEST_F(FolderWalkTest, FollowsNoLink)
{
    QTemporaryDir outside;
    SampleClips::write(outside.filePath("secret.mp3"), "x");
    file("a/1");
    ASSERT_TRUE(QFile::link(outside.path(), path("out")));
    ASSERT_TRUE(QFile::link(outside.filePath("secret.mp3"), path("a/out.mp3")));
    ASSERT_TRUE(QFile::link(m_tree.path(), path("a/loop")));
    ASSERT_TRUE(QFile::link(path("a/1"), path("a/inside")));
    EXPECT_EQ(walk(), QStringList({":", "a:1"}));
}

TEST_F(FolderWalkTest, WalksALibraryFolderThatIsALinkItself)
{
    file("a/1");
    QTemporaryDir other;
    ASSERT_TRUE(QFile::link(m_tree.path(), other.filePath("link")));
    int folders = 0;
    FolderWalk walk(m_cancelled);
    walk.walk(other.filePath("link"), {}, [&](const auto &) { return ++folders > 0; });
    EXPECT_EQ(folders, 2);
}

TEST_F(FolderWalkTest, ListsRegularFilesAlone)
{
    file("a/1");
    ASSERT_EQ(::mkfifo(path("a/pipe").toUtf8().constData(), 0600), 0);
    EXPECT_EQ(walk(), QStringList({":", "a:1"}));
}

TEST_F(FolderWalkTest, EntersNoDiscFolder)
{
    for (const char *name : {"Film/VIDEO_TS/VIDEO_TS.IFO", "Film/bdmv/STREAM/1.m2ts"})
        file(name);
    EXPECT_EQ(walk(), QStringList({":", "Film:"}));
}

TEST_F(FolderWalkTest, SkipsNamesThatAreNoText)
{
    file("a/1");
    const QByteArray strange = path("a/").toUtf8() + "\xFF\xFE.mp3";
    const int handle = ::open(strange.constData(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(handle, 0);
    ::close(handle);
    file(QString::fromUtf8("b/\u202E\n\"ä�.mp3"));
    EXPECT_EQ(walk(), QStringList({":", "a:1", QString::fromUtf8("b:\u202E\n\"ä�.mp3")}));
    EXPECT_EQ(TestLog::infoLines().filter("names that are no text").size(), 1);
    // Qt cannot remove it either.
    EXPECT_EQ(::unlink(strange.constData()), 0);
}

TEST_F(FolderWalkTest, StopsAtPathsThatNothingCanOpen)
{
    constexpr int Depth = 40;
    const QByteArray name(200, 'd');
    int handle = ::open(m_tree.path().toUtf8().constData(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < Depth; ++level) {
        ASSERT_EQ(::mkdirat(handle, name.constData(), 0700), 0);
        const int next = ::openat(handle, name.constData(), O_RDONLY | O_DIRECTORY);
        ::close(handle);
        handle = next;
    }
    ::close(handle);
    const int walked = walk().size();
    EXPECT_GT(walked, 15);
    EXPECT_LT(walked, Depth);
    EXPECT_EQ(TestLog::infoLines().filter("too long a path").size(), 1);
    // Qt cannot remove what is that deep either.
    EXPECT_EQ(QProcess::execute("rm", {"-rf", path(name)}), 0);
}

TEST_F(FolderWalkTest, TellsAnUnreadableFolderAndGoesOn)
{
    if (::geteuid() == 0)
        GTEST_SKIP() << "no folder is unreadable to this user";
    file("a/1");
    file("b/2");
    ASSERT_EQ(::chmod(path("a").toUtf8().constData(), 0), 0);
    EXPECT_EQ(walk(), QStringList({":", "a:", "b:2"}));
    EXPECT_EQ(TestLog::infoLines().filter("cannot be listed").size(), 1);
    ::chmod(path("a").toUtf8().constData(), 0700);
}

// Root may read everything; as nobody it may not.
class OtherUser final {
public:
    OtherUser()
        : m_isRoot(::geteuid() == 0)
    {
        if (m_isRoot)
            ::setfsuid(Nobody);
    }
    ~OtherUser()
    {
        if (m_isRoot)
            ::setfsuid(0);
    }
    OtherUser(const OtherUser &) = delete;
    OtherUser &operator=(const OtherUser &) = delete;

private:
    static constexpr uid_t Nobody = 65534;
    bool m_isRoot;
};

TEST_F(FolderWalkTest, AFolderWhoseFilesCannotBeAskedForIsUnreadableAndNotEmpty)
{
    file("a/1");
    file("b/2");
    // The names in "a" may be read, and nothing else. Paths from here on, for the folders above are closed
    // too.
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_tree.path()));
    for (const auto &[name, mode] : {std::pair(".", 0755), std::pair("b", 0755), std::pair("a", 0444)})
        EXPECT_EQ(::chmod(name, mode_t(mode)), 0);
    QStringList unreadable;
    {
        const OtherUser nobody;
        struct stat info = {};
        EXPECT_NE(::stat("a/1", &info), 0);
        EXPECT_EQ(::stat("b/2", &info), 0);
        EXPECT_EQ(DirectoryListing::read("a").outcome, DirectoryListing::Outcome::Unreadable);
        EXPECT_EQ(DirectoryListing::read("b").outcome, DirectoryListing::Outcome::Read);
        FolderWalk walk(m_cancelled);
        walk.walk(".", {}, [&](const auto &folder) {
            if (!folder->isReadable)
                unreadable << folder->path;
            return true;
        });
    }
    EXPECT_EQ(unreadable, QStringList("./a"));
    EXPECT_EQ(::chmod("a", 0755), 0);
    EXPECT_EQ(DirectoryListing::read("a").outcome, DirectoryListing::Outcome::Read);
    EXPECT_TRUE(QDir::setCurrent(before));
}

TEST_F(FolderWalkTest, TellsARootThatIsNotThere)
{
    FolderWalk walk(m_cancelled);
    int visits = 0;
    const auto count = [&](const auto &) { return ++visits > 0; };
    EXPECT_EQ(walk.walk(path("missing"), {}, count), FolderWalk::Result::Unreachable);
    file("plain");
    EXPECT_EQ(walk.walk(path("plain"), {}, count), FolderWalk::Result::Unreachable);
    EXPECT_EQ(visits, 0);
}

TEST_F(FolderWalkTest, IsCancelled)
{
    file("a/1");
    m_cancelled = true;
    EXPECT_TRUE(walk(FolderWalk::Result::Cancelled).isEmpty());
}

TEST_F(FolderWalkTest, EntersEachFolderBeforeItIsListed)
{
    file("a/1");
    QStringList order;
    FolderWalk walk(m_cancelled);
    walk.walk(
        m_tree.path(), [&](const QString &folder) { order << "enter " + QDir(folder).dirName(); },
        [&](const auto &folder) {
            order << "visit " + QDir(folder->path).dirName();
            return true;
        });
    const QString root = QDir(m_tree.path()).dirName();
    EXPECT_EQ(order, QStringList({"enter " + root, "visit " + root, "enter a", "visit a"}));
}

std::shared_ptr<WalkedFolder> folder(const QString &path, const QVector<FolderEntry> &entries,
                                     const std::shared_ptr<const WalkedFolder> &parent = {})
{
    auto made = std::make_shared<WalkedFolder>();
    made->path = path;
    made->entries = entries;
    made->parent = parent;
    made->sidecars = FolderPlan::sidecarDigest(*made);
    return made;
}

TEST(FolderPlanTest, SeesEachChangeThatCountsAndNoOther)
{
    const QVector<FolderEntry> above{
        {"Film.mkv", {1, 1}, false}, {"Season 1", {0, 1}, true}, {"ExtraFanArt", {0, 1}, true}};
    const QVector<FolderEntry> inside{{"1.mkv", {10, 10}, false},
                                      {"VIDEO_TS", {0, 5}, true},
                                      {"sub", {0, 5}, true},
                                      {"extrafanart", {0, 5}, true}};
    const QByteArray base = FolderPlan::fingerprint(*folder("/r/s", inside, folder("/r", above)));
    const struct {
        const char *what;
        QVector<FolderEntry> above;
        QVector<FolderEntry> inside;
        bool changes;
    } rows[] = {
        {"nothing", above, inside, false},
        {"size", above, {{"1.mkv", {11, 10}, false}, inside[1], inside[2], inside[3]}, true},
        {"time", above, {{"1.mkv", {10, 11}, false}, inside[1], inside[2], inside[3]}, true},
        {"name", above, {{"2.mkv", {10, 10}, false}, inside[1], inside[2], inside[3]}, true},
        {"time of a disc folder", above, {inside[0], {"VIDEO_TS", {0, 6}, true}, inside[2], inside[3]}, true},
        {"time of a folder", above, {inside[0], inside[1], {"sub", {0, 6}, true}, inside[3]}, false},
        {"time of a folder of pictures",
         above,
         {inside[0], inside[1], inside[2], {"extrafanart", {0, 6}, true}},
         true},
        {"time of a folder of pictures above",
         {above[0], above[1], {"ExtraFanArt", {0, 2}, true}},
         inside,
         true},
        {"folder gone", above, {inside[0], inside[1], inside[3]}, true},
        {"sidecar above", {above[0], above[1], above[2], {"tvshow.nfo", {1, 1}, false}}, inside, true},
        {"poster above",
         {above[0], above[1], above[2], {"Season01-Poster.JPG", {1, 1}, false}},
         inside,
         true},
        {"film above", {above[0], above[1], above[2], {"Other.mkv", {1, 1}, false}}, inside, false},
        {"poster of a film above",
         {above[0], above[1], above[2], {"Film-poster.jpg", {1, 1}, false}},
         inside,
         false},
    };
    for (const auto &row : rows) {
        const QByteArray now = FolderPlan::fingerprint(*folder("/r/s", row.inside, folder("/r", row.above)));
        EXPECT_EQ(now != base, row.changes) << row.what;
    }
}

TEST(FolderPlanTest, ALaterPartChangesWithTheFolderOfTheFirst)
{
    const QVector<FolderEntry> inside{{"VIDEO_TS", {0, 5}, true}};
    const auto print = [&](const char *name, const QVector<FolderEntry> &above) {
        return FolderPlan::fingerprint(
            *folder(QStringLiteral("/r/f/") + name, inside, folder("/r/f", above)));
    };
    const FolderEntry first{"Disc 1", {0, 5}, true};
    const FolderEntry changed{"Disc 1", {0, 6}, true};
    const FolderEntry second{"Disc 2", {0, 5}, true};
    const FolderEntry touched{"Disc 2", {0, 6}, true};
    EXPECT_NE(print("Disc 2", {second}), print("Disc 2", {first, second}));
    EXPECT_NE(print("Disc 2", {first, second}), print("Disc 2", {changed, second}));
    EXPECT_EQ(print("Disc 2", {first, second}), print("Disc 2", {first, touched}));
    EXPECT_EQ(print("Disc 1", {first}), print("Disc 1", {first, second}));
    EXPECT_EQ(print("Other", {second}), print("Other", {first, second}));
}

TEST(FolderPlanTest, KeepsWhatLiesBelowAnUnreadableFolder)
{
    FolderPlan plan({{"/r", "1"}, {"/r/a", "1"}, {"/r/a/b", "1"}, {"/r/ab", "1"}});
    QByteArray fingerprint;
    EXPECT_TRUE(plan.take(*folder("/r", {{"a", {0, 0}, true}}), fingerprint));
    auto unreadable = folder("/r/a", {});
    unreadable->isReadable = false;
    EXPECT_FALSE(plan.take(*unreadable, fingerprint));
    EXPECT_EQ(plan.gone(), QStringList("/r/ab"));
}

} // namespace
