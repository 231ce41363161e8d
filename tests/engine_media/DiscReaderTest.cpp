#include "engine/DiscReader.h"

#include "MediaClips.h"

#include <QDir>
#include <QDirIterator>

#include <gtest/gtest.h>

#include <random>

namespace {

using namespace libvp;

std::string text(const QString &path)
{
    return path.toStdString();
}

struct Row {
    const char *name;
    QString (*path)();
    VD_SourceForm form;
    VD_DiscType type;
};

class DiscReaderOn : public testing::TestWithParam<Row> {};

TEST_P(DiscReaderOn, FindsTitlesWithTheirLengthsAndChapters)
{
    const QString path = GetParam().path();
    ASSERT_FALSE(path.isEmpty()) << qPrintable(TestDiscs::error());
    DiscContents contents;
    ASSERT_TRUE(DiscReader::read(text(path), contents));
    EXPECT_EQ(contents.form, GetParam().form);
    ASSERT_EQ(contents.titles.size(), std::size_t(TestDiscs::TitleCount));
    EXPECT_EQ(contents.mainTitle, TestDiscs::MainTitle);
    EXPECT_EQ(contents.titles[0].number, 1);
    EXPECT_NEAR(contents.titles[0].durationMs, TestDiscs::MainTitleMs, TestDiscs::ToleranceMs);
    EXPECT_EQ(contents.titles[0].chapterCount, TestDiscs::MainTitleChapters);
    EXPECT_EQ(contents.titles[1].number, 2);
    EXPECT_NEAR(contents.titles[1].durationMs, TestDiscs::ShortTitleMs, TestDiscs::ToleranceMs);
    EXPECT_EQ(contents.titles[1].chapterCount, 1);
}

TEST_P(DiscReaderOn, TellsTypeNameAndSize)
{
    const QString path = GetParam().path();
    VDDiscDisplayInfo info;
    ASSERT_TRUE(DiscReader::displayInfo(text(path), info));
    EXPECT_EQ(info.discType, GetParam().type);
    EXPECT_EQ(info.hasMedia, 1);
    if (QFileInfo(path).isDir()) {
        EXPECT_EQ(QString::fromUtf8(info.volumeName), QFileInfo(path).fileName());
        EXPECT_GT(info.sizeBytes, 1000000);
    } else {
        EXPECT_STREQ(info.volumeName, GetParam().type == VD_DiscType_Dvd ? TestDiscs::DvdVolumeName
                                                                         : TestDiscs::BluRayVolumeName);
        EXPECT_EQ(info.sizeBytes, QFileInfo(path).size());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Discs, DiscReaderOn,
    testing::Values(Row{"DvdFolder", TestDiscs::dvdFolder, VD_Source_FolderDvd, VD_DiscType_Dvd},
                    Row{"DvdImage", TestDiscs::dvdImage, VD_Source_ImageDvd, VD_DiscType_Dvd},
                    Row{"BluRayFolder", TestDiscs::bluRayFolder, VD_Source_FolderBluRay, VD_DiscType_BluRay},
                    Row{"BluRayImage", TestDiscs::bluRayImage, VD_Source_ImageBluRay, VD_DiscType_BluRay},
                    Row{"UltraHdFolder", TestDiscs::ultraHdFolder, VD_Source_FolderBluRay, VD_DiscType_Uhd}),
    [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

TEST(DiscReader, WhatIsNoDiscHasNoTitles)
{
    QTemporaryDir folder;
    DiscContents contents;
    EXPECT_FALSE(DiscReader::read(text(folder.path()), contents));
    EXPECT_FALSE(DiscReader::read(MediaClips::pattern(), contents));
    EXPECT_FALSE(DiscReader::read("/nowhere", contents));
    EXPECT_FALSE(DiscReader::read("", contents));
    EXPECT_TRUE(contents.titles.empty());
}

TEST(DiscReader, DataIsShownAsData)
{
    QTemporaryDir folder;
    ASSERT_TRUE(MediaClips::writeFile(folder.filePath("a.txt"), "12345"));
    VDDiscDisplayInfo info;
    ASSERT_TRUE(DiscReader::displayInfo(text(folder.path()), info));
    EXPECT_EQ(info.discType, VD_DiscType_Data);
    EXPECT_EQ(info.sizeBytes, 5);
    EXPECT_FALSE(DiscReader::displayInfo("/nowhere", info));
}

TEST(DiscReader, ALongFolderNameIsCutBetweenTwoCharacters)
{
    QTemporaryDir folder;
    const QString name = QStringLiteral("x") + QString(127, QChar(0xe4)); // 255 bytes
    ASSERT_TRUE(QDir(folder.path()).mkpath(name));
    VDDiscDisplayInfo info;
    ASSERT_TRUE(DiscReader::displayInfo(text(folder.filePath(name)), info));
    EXPECT_EQ(QString::fromUtf8(info.volumeName), name);
}

TEST(DiscReader, TheBackupOfTheDiscInformationServesWhenItIsGone)
{
    QTemporaryDir folder;
    ASSERT_TRUE(TestDiscs::copyOf(TestDiscs::dvdFolder(), folder.filePath("disc")));
    ASSERT_TRUE(QFile::remove(folder.filePath("disc/VIDEO_TS/VIDEO_TS.IFO")));
    DiscContents contents;
    EXPECT_TRUE(DiscReader::read(text(folder.filePath("disc")), contents));
    EXPECT_EQ(contents.titles.size(), std::size_t(TestDiscs::TitleCount));
}

TEST(DiscReader, AStructureWithoutItsFilesIsNoDisc)
{
    QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath("dvd/VIDEO_TS"));
    ASSERT_TRUE(QDir(folder.path()).mkpath("bd/BDMV/PLAYLIST"));
    DiscContents contents;
    EXPECT_FALSE(DiscReader::read(text(folder.filePath("dvd")), contents));
    EXPECT_FALSE(DiscReader::read(text(folder.filePath("bd")), contents));
}

// Changes bytes of every structure file, again and again, and reads the disc.
void breakAndRead(const QString &original, const QStringList &patterns, int rounds, unsigned seed)
{
    QTemporaryDir folder;
    const QString disc = folder.filePath("disc");
    ASSERT_TRUE(TestDiscs::copyOf(original, disc));
    QStringList files;
    QDirIterator walk(disc, patterns, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files << walk.next();
    files.sort();
    ASSERT_FALSE(files.isEmpty());
    std::mt19937 random(seed);
    const auto below = [&random](int end) { return int(random() % unsigned(std::max(1, end))); };
    for (int round = 0; round < rounds; ++round) {
        const QString file = files[below(files.size())];
        const QByteArray whole = MediaClips::contentsOf(file);
        QByteArray broken = whole;
        switch (round % 4) {
        case 0:
            broken.truncate(below(broken.size()));
            break;
        case 1:
            for (int i = 0; i < 16; ++i)
                broken[below(broken.size())] = char(random());
            break;
        case 2: {
            // Tables and counts stand at the front.
            for (int i = 0; i < 8; ++i)
                broken[below(std::min(1024, broken.size()))] = char(0xff);
            break;
        }
        default: {
            const int from = below(broken.size());
            const int count = std::min(below(512), broken.size() - from);
            broken.replace(from, count, QByteArray(count, round % 8 == 3 ? '\0' : '\xff'));
            break;
        }
        }
        ASSERT_TRUE(MediaClips::writeFile(file, broken));
        DiscContents contents;
        EXPECT_TRUE(DiscReader::read(text(disc), contents) || contents.titles.empty());
        EXPECT_LE(contents.titles.size(), 2000u);
        VDDiscDisplayInfo info;
        EXPECT_TRUE(DiscReader::displayInfo(text(disc), info));
        ASSERT_TRUE(MediaClips::writeFile(file, whole));
    }
    DiscContents contents;
    EXPECT_TRUE(DiscReader::read(text(disc), contents));
    EXPECT_EQ(contents.titles.size(), std::size_t(TestDiscs::TitleCount));
}

TEST(DiscReader, BrokenDvdStructuresAreReadWithoutHarm)
{
    breakAndRead(TestDiscs::dvdFolder(), {"*.IFO", "*.BUP"}, 400, 1);
}

TEST(DiscReader, BrokenBluRayStructuresAreReadWithoutHarm)
{
    breakAndRead(TestDiscs::bluRayFolder(), {"*.bdmv", "*.mpls", "*.clpi"}, 400, 2);
}

TEST(DiscReader, BrokenImagesAreReadWithoutHarm)
{
    for (const QString &image : {TestDiscs::dvdImage(), TestDiscs::bluRayImage()}) {
        QTemporaryDir folder;
        const QString path = folder.filePath("disc.iso");
        QByteArray whole = MediaClips::contentsOf(image);
        std::mt19937 random(3);
        for (int round = 0; round < 60; ++round) {
            // The file systems of the image stand in its first part.
            QByteArray broken =
                whole.left(round % 3 == 0 ? int(random() % unsigned(whole.size())) : whole.size());
            for (int i = 0; i < 64 && broken.size() > 700 * 2048; ++i)
                broken[16 * 2048 + int(random() % (600 * 2048))] = char(random());
            ASSERT_TRUE(MediaClips::writeFile(path, broken));
            DiscContents contents;
            EXPECT_TRUE(DiscReader::read(text(path), contents) || contents.titles.empty());
            VDDiscDisplayInfo info;
            EXPECT_TRUE(DiscReader::displayInfo(text(path), info));
        }
    }
}

} // namespace
