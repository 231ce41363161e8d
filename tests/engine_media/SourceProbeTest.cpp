#include "engine/SourceProbe.h"

#include "MediaClips.h"

#include <QDir>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

using namespace libvp;

std::string text(const QString &path)
{
    return path.toStdString();
}

TEST(SourceProbe, TellsTheFormsOfDiscs)
{
    const QString dvd = TestDiscs::dvdFolder();
    const QString bluRay = TestDiscs::bluRayFolder();
    ASSERT_FALSE(dvd.isEmpty()) << qPrintable(TestDiscs::error());
    ASSERT_FALSE(bluRay.isEmpty()) << qPrintable(TestDiscs::error());
    const struct {
        QString path;
        VD_SourceForm form;
    } rows[] = {{dvd, VD_Source_FolderDvd},
                {dvd + "/", VD_Source_FolderDvd},
                {dvd + "/VIDEO_TS", VD_Source_FolderDvd},
                {dvd + "/VIDEO_TS/VIDEO_TS.IFO", VD_Source_FolderDvd},
                {TestDiscs::dvdImage(), VD_Source_ImageDvd},
                {bluRay, VD_Source_FolderBluRay},
                {bluRay + "/BDMV", VD_Source_FolderBluRay},
                {bluRay + "/BDMV/index.bdmv", VD_Source_FolderBluRay},
                {TestDiscs::bluRayImage(), VD_Source_ImageBluRay},
                {QString::fromStdString(MediaClips::pattern()), VD_Source_File},
                {QDir::tempPath(), VD_Source_File},
                {QStringLiteral("/nowhere/at/all"), VD_Source_File},
                {QString(), VD_Source_File}};
    for (const auto &row : rows)
        EXPECT_EQ(SourceProbe::form(text(row.path)), row.form) << qPrintable(row.path);
}

TEST(SourceProbe, TheFolderWithBothStructuresIsADvd)
{
    QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("VIDEO_TS"));
    ASSERT_TRUE(QDir(folder.path()).mkpath("BDMV"));
    EXPECT_EQ(SourceProbe::form(text(folder.path())), VD_Source_FolderDvd);
}

TEST(SourceProbe, TheDiscRootIsTheFolderAboveTheStructure)
{
    const QString dvd = TestDiscs::dvdFolder();
    const QString bluRay = TestDiscs::bluRayFolder();
    for (const QString &path :
         {dvd, dvd + "/", dvd + "/VIDEO_TS", dvd + "/VIDEO_TS/", dvd + "/VIDEO_TS/VIDEO_TS.IFO"})
        EXPECT_EQ(SourceProbe::discRoot(text(path)), text(dvd)) << qPrintable(path);
    for (const QString &path : {bluRay, bluRay + "/BDMV", bluRay + "/BDMV/index.bdmv"})
        EXPECT_EQ(SourceProbe::discRoot(text(path)), text(bluRay)) << qPrintable(path);
    EXPECT_EQ(SourceProbe::discRoot(text(TestDiscs::dvdImage())), text(TestDiscs::dvdImage()));
}

TEST(SourceProbe, DescribesAVideoFile)
{
    const vdFileInfo info = SourceProbe::describe(MediaClips::pattern());
    EXPECT_EQ(info.mediaClass, VD_Media_File);
    EXPECT_EQ(info.sourceForm, VD_Source_File);
    EXPECT_STREQ(info.codec, "h264");
    EXPECT_EQ(info.width, 320);
    EXPECT_EQ(info.height, 180);
    EXPECT_EQ(info.audioOnly, 0);
    EXPECT_EQ(info.flags, 0u);
}

TEST(SourceProbe, Marks4KAndHevc)
{
    const vdFileInfo info = SourceProbe::describe(MediaClips::hevc4K());
    EXPECT_STREQ(info.codec, "hevc");
    EXPECT_EQ(info.width, 3840);
    EXPECT_EQ(info.height, 2160);
    EXPECT_EQ(info.flags, unsigned(VD_Flag_File4K | VD_Flag_FileHevc));
}

TEST(SourceProbe, ACoverPictureIsNoVideo)
{
    for (const std::string &path : {MediaClips::cover(), MediaClips::sound()}) {
        const vdFileInfo info = SourceProbe::describe(path);
        EXPECT_EQ(info.audioOnly, 1) << path;
        EXPECT_EQ(info.sourceForm, VD_Source_AudioFile) << path;
        EXPECT_STREQ(info.codec, "") << path;
        EXPECT_EQ(info.width, 0) << path;
    }
}

TEST(SourceProbe, DescribesDiscs)
{
    const vdFileInfo dvd = SourceProbe::describe(text(TestDiscs::dvdImage()), VD_Item_File);
    EXPECT_EQ(dvd.mediaClass, VD_Media_Dvd);
    EXPECT_EQ(dvd.sourceForm, VD_Source_ImageDvd);
    EXPECT_STREQ(dvd.codec, "mpeg2");
    EXPECT_EQ(dvd.width, TestDiscs::DvdWidth);
    EXPECT_EQ(dvd.height, TestDiscs::DvdHeight);

    const vdFileInfo bluRay = SourceProbe::describe(text(TestDiscs::bluRayFolder()), VD_Item_Folder, 2);
    EXPECT_EQ(bluRay.mediaClass, VD_Media_BluRay);
    EXPECT_EQ(bluRay.sourceForm, VD_Source_FolderBluRay);
    EXPECT_STREQ(bluRay.codec, "h264");
    EXPECT_EQ(bluRay.flags, 0u);

    const vdFileInfo uhd = SourceProbe::describe(text(TestDiscs::ultraHdFolder()));
    EXPECT_EQ(uhd.mediaClass, VD_Media_BluRay);
    EXPECT_EQ(uhd.flags, unsigned(VD_Flag_Uhd));
}

TEST(SourceProbe, MarksARecordedDisc)
{
    QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("BDAV"));
    ASSERT_TRUE(MediaClips::writeFile(folder.filePath("BDAV/info.bdav"), "BDAV0200"));
    const vdFileInfo info = SourceProbe::describe(text(folder.path()));
    EXPECT_EQ(info.sourceForm, VD_Source_FolderBluRay);
    EXPECT_EQ(info.mediaClass, VD_Media_BluRay);
    EXPECT_EQ(info.flags, unsigned(VD_Flag_Bdav));
}

// Whoever opens a pipe waits until somebody writes to it.
TEST(SourceProbe, PipesSocketsAndCharacterDevicesAreNotOpened)
{
    QTemporaryDir folder;
    const QByteArray pipe = folder.filePath("film.mkv").toLocal8Bit();
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    const QByteArray socketPath = folder.filePath("film.iso").toLocal8Bit();
    const int handle = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::snprintf(address.sun_path, sizeof(address.sun_path), "%s", socketPath.constData());
    ASSERT_EQ(::bind(handle, reinterpret_cast<sockaddr *>(&address), sizeof(address)), 0);

    QElapsedTimer timer;
    timer.start();
    for (const char *path : {pipe.constData(), socketPath.constData(), "/dev/zero", "/dev/tty"}) {
        const vdFileInfo info = SourceProbe::describe(path);
        EXPECT_EQ(info.sourceForm, VD_Source_File) << path;
        EXPECT_EQ(info.width, 0) << path;
    }
    EXPECT_LT(timer.elapsed(), 1000);
    ::close(handle);
}

TEST(SourceProbe, WhatIsNoMediaIsDescribedAsAnUnknownFile)
{
    QTemporaryDir folder;
    ASSERT_TRUE(MediaClips::writeFile(folder.filePath("empty.mkv"), {}));
    ASSERT_TRUE(MediaClips::writeFile(folder.filePath("text.mp4"), QByteArray(100000, 'a')));
    ASSERT_TRUE(MediaClips::writeFile(folder.filePath("broken.iso"), QByteArray(16 * 2048, '\0') + "\1CD001\1"
                                                                         + QByteArray(100000, '\x55')));
    for (const char *name : {"empty.mkv", "text.mp4", "broken.iso"}) {
        const vdFileInfo info = SourceProbe::describe(text(folder.filePath(name)));
        EXPECT_EQ(info.sourceForm, VD_Source_File) << name;
        EXPECT_EQ(info.audioOnly, 0) << name;
        EXPECT_STREQ(info.codec, "") << name;
    }
}

// A list of files is no film: what it names is none of the caller's business.
TEST(SourceProbe, APlaylistReachesNoOtherFile)
{
    QTemporaryDir folder;
    const QByteArray target = QByteArray::fromStdString(MediaClips::pattern());
    ASSERT_TRUE(
        MediaClips::writeFile(folder.filePath("list.m3u8"), "#EXTM3U\n#EXT-X-TARGETDURATION:2\n#EXTINF:2,\n"
                                                                + target + "\n#EXT-X-ENDLIST\n"));
    ASSERT_TRUE(MediaClips::writeFile(folder.filePath("list.ffconcat"),
                                      "ffconcat version 1.0\nfile '" + target + "'\n"));
    for (const char *name : {"list.m3u8", "list.ffconcat"})
        EXPECT_EQ(SourceProbe::describe(text(folder.filePath(name))).width, 0) << name;
}

TEST(SourceProbe, NamesWithSignsOfTheirOwnMeaningAreNames)
{
    QTemporaryDir folder;
    const QString clip = QString::fromStdString(MediaClips::pattern());
    for (const char *name : {"100%03d.jpg.mp4", "file:pipe:0.mp4", "a?b*c[1].mp4", "concat:a|b.mp4"}) {
        const QString path = folder.filePath(QString::fromLatin1(name));
        ASSERT_TRUE(QFile::copy(clip, path));
        EXPECT_EQ(SourceProbe::describe(text(path)).width, 320) << name;
    }
}

} // namespace
