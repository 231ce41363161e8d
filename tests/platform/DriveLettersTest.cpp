#include "platform/DriveLetters.h"

#include "support/TestLog.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <thread>

namespace {

class DriveLettersTest : public testing::Test {
protected:
    QString image(const QString &name) const
    {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    QTemporaryDir m_folder;
    DriveLetters m_letters;
};

TEST_F(DriveLettersTest, RootsAreToldFromPaths)
{
    for (const char *root : {"E", "e", "E:", "E:/", "E:\\", "e:\\"})
        EXPECT_EQ(DriveLetters::letterOf(root), QChar('E')) << root;
    for (const char *path :
         {"", "/", "/E", "E/", "E\\", "EE", "E:x", "E:/x", "/e/", "1:", ":", "E:/:", "tm:"})
        EXPECT_TRUE(DriveLetters::letterOf(path).isNull()) << path;
}

TEST_F(DriveLettersTest, AnImageBoundToALetterIsAnOpticalDrive)
{
    const QString iso = image("film.iso");
    ASSERT_TRUE(m_letters.bind('t', iso));
    const auto drive = m_letters.drive('T');
    ASSERT_TRUE(drive);
    EXPECT_EQ(drive->letter, QChar('T'));
    EXPECT_EQ(drive->kind, Drive::Optical);
    EXPECT_EQ(drive->target, iso);
    EXPECT_TRUE(drive->isVirtual);
    for (const char *root : {"T", "t:", "T:/", "T:\\"})
        EXPECT_EQ(m_letters.resolve(root), iso) << root;
    EXPECT_EQ(m_letters.volumeLabel('T'), "film");
    m_letters.unbind('T');
    EXPECT_FALSE(m_letters.drive('T'));
    EXPECT_EQ(m_letters.resolve("T:/"), "T:/");
}

TEST_F(DriveLettersTest, PathsBelowABoundFolderAreFoundInIt)
{
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("MY_FILM"));
    const QString folder = m_folder.filePath("MY_FILM");
    ASSERT_TRUE(m_letters.bind('U', folder));
    EXPECT_EQ(m_letters.resolve("U:\\BDMV\\index.bdmv"), folder + "/BDMV/index.bdmv");
    EXPECT_EQ(m_letters.resolve("u:/VIDEO_TS"), folder + "/VIDEO_TS");
    EXPECT_EQ(m_letters.volumeLabel('u'), "MY_FILM");
}

TEST_F(DriveLettersTest, OtherPathsComeBackAsTheyAre)
{
    ASSERT_TRUE(m_letters.bind('T', image("t.iso")));
    for (const char *path : {"/tm/", "/T:/x", "T/x", "film.mkv", "T:film.mkv", "", "Q:/nothing"})
        EXPECT_EQ(m_letters.resolve(path), path);
}

TEST_F(DriveLettersTest, WhatIsNoLetterOrDoesNotExistIsNotBound)
{
    EXPECT_FALSE(m_letters.bind('1', m_folder.path()));
    EXPECT_FALSE(m_letters.bind(QChar(0xe4), m_folder.path()));
    EXPECT_FALSE(m_letters.bind('T', m_folder.filePath("gone.iso")));
    EXPECT_FALSE(m_letters.bind('T', ""));
    EXPECT_FALSE(m_letters.drive('T'));
    EXPECT_FALSE(m_letters.drive(QChar()));
    EXPECT_EQ(m_letters.volumeLabel('T'), "");
}

TEST_F(DriveLettersTest, ABoundLetterHidesTheMachinesAndTheListIsByLetter)
{
    const QString iso = image("d.iso");
    ASSERT_TRUE(m_letters.bind('Z', m_folder.path()));
    ASSERT_TRUE(m_letters.bind('D', iso));
    const QVector<Drive> drives = m_letters.drives();
    ASSERT_GE(drives.size(), 2);
    for (int i = 1; i < drives.size(); ++i)
        EXPECT_LT(drives[i - 1].letter, drives[i].letter);
    EXPECT_EQ(m_letters.drive('D')->target, iso);
    EXPECT_EQ(drives.last().letter, QChar('Z'));
}

TEST_F(DriveLettersTest, AListBindsWhatItCanAndNamesTheRest)
{
    const QString iso = image("a b.iso");
    m_letters.bindAll(QString("t=%1;U=/no/such;xx=%1;;V").arg(iso));
    EXPECT_EQ(m_letters.drive('T')->target, iso);
    EXPECT_FALSE(m_letters.drive('U'));
    EXPECT_EQ(TestLog::infoLines().size(), 3);
}

TEST_F(DriveLettersTest, ThreadsMayBindAndAskAtOnce)
{
    const QString iso = image("x.iso");
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            const QChar letter('P' + t);
            for (int i = 0; i < 50; ++i) {
                EXPECT_TRUE(m_letters.bind(letter, iso));
                EXPECT_EQ(m_letters.resolve(QString(letter) + ":/"), iso);
                m_letters.unbind(letter);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
}

} // namespace
