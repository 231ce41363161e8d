#include "disc/DiscFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class DiscFolderTest : public testing::Test {
protected:
    void file(const QString &name)
    {
        const QString path = root() + name;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    void folder(const QString &name) { ASSERT_TRUE(QDir().mkpath(root() + name)); }
    [[nodiscard]] QString root() const { return m_dir.path() + '/'; }
    [[nodiscard]] DiscFolderProbe classify(const QString &name = QString()) const
    {
        return ClassifyDiscFolder(root() + name);
    }

    QTemporaryDir m_dir;
};

} // namespace

TEST_F(DiscFolderTest, EmptyFolderIsNoDisc)
{
    const DiscFolderProbe probe = ClassifyDiscFolder(m_dir.path());
    EXPECT_EQ(probe.kind, DiscFolderNone);
    EXPECT_TRUE(probe.discRoot.isEmpty());
    EXPECT_EQ(probe.path, root());
}

TEST_F(DiscFolderTest, EmptyAndMissingPathsAreNoDisc)
{
    EXPECT_EQ(ClassifyDiscFolder(QString()).kind, DiscFolderNone);
    EXPECT_EQ(classify("absent").kind, DiscFolderNone);
    EXPECT_FALSE(IsPlayableDiscFolder(QString()));
    EXPECT_FALSE(IsPlayableDiscFolder(root() + "absent"));
}

TEST_F(DiscFolderTest, VrManagerWithoutVrMovieGoesOnToTheLaterTests)
{
    file("VR_MANGR.IFO");
    EXPECT_EQ(classify().kind, DiscFolderNone);
    file("VIDEO_TS.IFO");
    EXPECT_EQ(classify().kind, DiscFolderDvd);
}

TEST_F(DiscFolderTest, VrRecordingWinsOverDvdFiles)
{
    file("VR_MANGR.IFO");
    file("VR_MOVIE.VRO");
    file("VIDEO_TS.IFO");
    EXPECT_EQ(classify().kind, DiscFolderVr);
    EXPECT_EQ(classify().discRoot, root());
    EXPECT_FALSE(IsPlayableDiscFolder(root()));
}

TEST_F(DiscFolderTest, DvdFileWinsOverBlurayFile)
{
    file("VIDEO_TS.IFO");
    file("index.bdmv");
    EXPECT_EQ(classify().kind, DiscFolderDvd);
}

TEST_F(DiscFolderTest, DvdFolderWinsOverBlurayFolder)
{
    folder("VIDEO_TS");
    folder("BDMV");
    EXPECT_EQ(classify().kind, DiscFolderDvd);
    EXPECT_EQ(classify().discRoot, root() + "VIDEO_TS/");
    EXPECT_TRUE(IsPlayableDiscFolder(m_dir.path()));
}

TEST_F(DiscFolderTest, BdmvFolderItselfIsItsOwnRoot)
{
    file("BDMV/index.bdmv");
    EXPECT_EQ(classify("BDMV").kind, DiscFolderBluray);
    EXPECT_EQ(classify("BDMV").discRoot, root() + "BDMV/");
    EXPECT_FALSE(IsPlayableDiscFolder(root() + "BDMV/"));
    for (const char *name : {"BDMV/CLIPINF", "BDMV/PLAYLIST", "BDMV/STREAM"})
        folder(name);
    EXPECT_TRUE(IsPlayableDiscFolder(root() + "BDMV/"));
    EXPECT_TRUE(IsPlayableDiscFolder(root()));
}

TEST_F(DiscFolderTest, BlurayWithoutOneOfItsThreeFoldersIsRefused)
{
    for (const char *missing : {"CLIPINF", "PLAYLIST", "STREAM"}) {
        const QString disc = QLatin1String("without ") + missing + '/';
        for (const char *name : {"CLIPINF", "PLAYLIST", "STREAM"}) {
            if (qstrcmp(name, missing) != 0)
                folder(disc + "BDMV/" + name);
        }
        EXPECT_EQ(classify(disc).kind, DiscFolderBluray);
        EXPECT_FALSE(IsPlayableDiscFolder(root() + disc)) << missing;
        folder(disc + "BDMV/" + missing);
        EXPECT_TRUE(IsPlayableDiscFolder(root() + disc)) << missing;
    }
}

TEST_F(DiscFolderTest, RecordedDiscIsHandedOverByItsRoot)
{
    file("BDAV/info.bdav");
    EXPECT_EQ(classify().kind, DiscFolderBluray);
    EXPECT_EQ(classify().discRoot, root());
    EXPECT_FALSE(IsPlayableDiscFolder(root()));
}

TEST_F(DiscFolderTest, RecordedDiscWithItsThreeFoldersInTheRootIsPlayable)
{
    file("BDAV/info.bdav");
    for (const char *name : {"CLIPINF", "PLAYLIST"})
        folder(name);
    EXPECT_FALSE(IsPlayableDiscFolder(root()));
    folder("STREAM");
    EXPECT_TRUE(IsPlayableDiscFolder(m_dir.path()));
}

TEST_F(DiscFolderTest, InfoFileInThePathItselfHidesTheRecordedFolderBelow)
{
    file("info.bdav");
    file("BDAV/info.bdav");
    EXPECT_EQ(classify().kind, DiscFolderNone);
}

TEST_F(DiscFolderTest, RecordedDiscWinsOverADvdBesideIt)
{
    file("BDAV/info.bdav");
    folder("VIDEO_TS");
    EXPECT_EQ(classify().kind, DiscFolderBluray);
}

TEST_F(DiscFolderTest, PathWithAndWithoutSlashAreTheSame)
{
    folder("VIDEO_TS");
    EXPECT_EQ(ClassifyDiscFolder(m_dir.path()).discRoot, ClassifyDiscFolder(root()).discRoot);
    EXPECT_EQ(ClassifyDiscFolder(m_dir.path()).path, root());
}

TEST_F(DiscFolderTest, VideoFolderThatIsAFileIsNoDisc)
{
    file("VIDEO_TS");
    file("BDMV");
    EXPECT_EQ(classify().kind, DiscFolderNone);
}

TEST_F(DiscFolderTest, FolderNamedBdavFallsThroughToTheLaterTests)
{
    file("BDAV/info.bdav");
    EXPECT_EQ(classify("BDAV").kind, DiscFolderNone);
    file("BDAV/VIDEO_TS.IFO");
    EXPECT_EQ(classify("BDAV").kind, DiscFolderDvd);
}

TEST(StripLibraryFolderSuffixTest, LosesTheLastComponentInAnyCase)
{
    EXPECT_EQ(StripLibraryFolderSuffix("C:\\Movies\\X\\FOLDER.IFO"), "C:\\Movies\\X");
    for (const char *name : {"folder.bdmv", "folder.ifo", "folder.bdav", "folder.dvdvr", "folder.bdm"})
        EXPECT_EQ(StripLibraryFolderSuffix(QLatin1String("/films/X/") + name), "/films/X") << name;
    EXPECT_EQ(StripLibraryFolderSuffix("/films/folder.ifo.mkv"), "/films/folder.ifo.mkv");
    EXPECT_EQ(StripLibraryFolderSuffix("myfolder.ifo"), "myfolder.ifo");
}

TEST(StripLibraryFolderSuffixTest, TwoSuffixesInTheOrderOfTheTestsAreBothLost)
{
    EXPECT_EQ(StripLibraryFolderSuffix("/x/folder.ifo\\folder.bdmv"), "/x");
    EXPECT_EQ(StripLibraryFolderSuffix("/x\\folder.bdmv/folder.ifo"), "/x\\folder.bdmv");
}

TEST_F(DiscFolderTest, SplitOfAnEmptyFolderAnswersDvdAndAddsItsFolder)
{
    QString path = m_dir.path();
    QString parent;
    EXPECT_EQ(SplitDiscPath(path, false, &parent), DiscFolderDvd);
    EXPECT_EQ(path, root() + "VIDEO_TS");
    EXPECT_EQ(parent, QFileInfo(m_dir.path()).path() + '/');
    path = root();
    EXPECT_EQ(SplitDiscPath(path, false), DiscFolderDvd);
    EXPECT_EQ(path, root() + "VIDEO_TS/");
}

TEST_F(DiscFolderTest, SplitFindsTheBlurayFolderBelow)
{
    folder("BDMV");
    QString path = m_dir.path();
    EXPECT_EQ(SplitDiscPath(path, true), DiscFolderBluray);
    EXPECT_EQ(path, m_dir.path());
    EXPECT_EQ(SplitDiscPath(path, false), DiscFolderBluray);
    EXPECT_EQ(path, root() + "BDMV");
}

TEST(SplitDiscPathTest, CutsTheDiscFolderInAnyCase)
{
    QString path = "/disc/Video_ts/";
    QString parent;
    EXPECT_EQ(SplitDiscPath(path, true, &parent), DiscFolderDvd);
    EXPECT_EQ(path, "/disc/");
    EXPECT_EQ(parent, "/disc/");
    path = "/disc/bdmv";
    EXPECT_EQ(SplitDiscPath(path, false, &parent), DiscFolderBluray);
    EXPECT_EQ(path, "/disc/bdmv");
    EXPECT_EQ(parent, "/disc/");
}
