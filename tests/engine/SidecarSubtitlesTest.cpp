#include "engine/SidecarSubtitles.h"

#include "play/TestClips.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

class SidecarSubtitlesTest : public testing::Test {
protected:
    void make(const QString &name, const std::string &bytes = "1\n00:00:00,000 --> 00:00:01,000\nHello\n")
    {
        const QString path = m_folder + "/" + name;
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        TestClips::write(path.toStdString(), bytes);
    }

    // Names of what is found for a source, below the folder.
    QStringList found(const QString &source, const QString &further = {})
    {
        m_found = SidecarSubtitles::find((m_folder + "/" + source).toStdString(), further.toStdString());
        QStringList names;
        for (const SidecarSubtitle &file : m_found)
            names += QDir(m_folder).relativeFilePath(QString::fromStdString(file.path));
        return names;
    }

    const QString m_folder = QString::fromStdString(TestClips::scratchFolder());
    std::vector<SidecarSubtitle> m_found;
};

} // namespace

TEST_F(SidecarSubtitlesTest, TheSourcesNameAndALanguageBehindIt)
{
    make("film.mkv");
    make("film.srt");
    make("film.en.srt");
    make("film.pt-BR.ass");
    make("FILM.GER.SRT");
    make("film - Français.vtt");
    make("film_spa.ssa");
    make("film [Italian].smi");
    EXPECT_EQ(found("film.mkv"),
              (QStringList{"film.srt", "FILM.GER.SRT", "film - Français.vtt", "film [Italian].smi",
                           "film.en.srt", "film.pt-BR.ass", "film_spa.ssa"}));
    EXPECT_EQ(m_found[0].language, "");
    EXPECT_EQ(m_found[1].language, "ger");
    EXPECT_EQ(m_found[2].language, "fre");
    EXPECT_EQ(m_found[3].language, "ita");
    EXPECT_EQ(m_found[4].language, "eng");
    EXPECT_EQ(m_found[5].language, "por");
    EXPECT_EQ(m_found[6].language, "spa");
}

TEST_F(SidecarSubtitlesTest, MarksAreReadAndStandBehindPlainFiles)
{
    make("film.mkv");
    make("film.en.forced.srt");
    make("film.en.sdh.srt");
    make("film.en.hi.srt");
    make("film.hi.srt");
    make("film.en.srt");
    EXPECT_EQ(found("film.mkv"), (QStringList{"film.en.srt", "film.hi.srt", "film.en.hi.srt",
                                              "film.en.sdh.srt", "film.en.forced.srt"}));
    EXPECT_EQ(m_found[1].language, "hin") << "alone it is a language";
    EXPECT_EQ(m_found[2].language, "eng");
    EXPECT_TRUE(m_found[2].isForHearingImpaired);
    EXPECT_TRUE(m_found[4].isForced);
}

TEST_F(SidecarSubtitlesTest, AnotherFilmsFilesAreLeftToIt)
{
    make("film.mkv");
    make("film 2.mkv");
    make("film.2.mkv");
    make("film 2.srt");
    make("film.2.en.srt");
    make("films.srt");
    make("film10.srt");
    make("other.srt");
    make("film 3.srt");
    make("film is good.srt");
    EXPECT_EQ(found("film.mkv"), QStringList());
    EXPECT_EQ(found("film 2.mkv"), QStringList{"film 2.srt"});
    EXPECT_EQ(found("film.2.mkv"), QStringList{"film.2.en.srt"});
}

TEST_F(SidecarSubtitlesTest, WordsBehindAPointMayBeAnything)
{
    make("film.mkv");
    make("film.en.WEB.x264-group.srt");
    make("film.this.is.something.srt");
    EXPECT_EQ(found("film.mkv"), (QStringList{"film.this.is.something.srt", "film.en.WEB.x264-group.srt"}));
    EXPECT_EQ(m_found[0].language, "");
    EXPECT_EQ(m_found[1].language, "eng");
}

TEST_F(SidecarSubtitlesTest, FoldersBesideTheSource)
{
    make("film.mkv");
    make("Subs/2_English.srt");
    make("Subs/3_German.srt");
    make("Subtitles/film.fr.srt");
    make("subs.old/film.srt");
    make("Subs/film/4_Italian.srt");
    make("Subs/another/5_Greek.srt");
    EXPECT_EQ(found("film.mkv"), (QStringList{"Subs/2_English.srt", "Subs/3_German.srt",
                                              "Subs/film/4_Italian.srt", "Subtitles/film.fr.srt"}));
    EXPECT_EQ(m_found[0].language, "eng");
    EXPECT_EQ(m_found[1].language, "ger");
    EXPECT_EQ(m_found[2].language, "ita");
}

TEST_F(SidecarSubtitlesTest, AmongSeveralFilmsTheFolderIsReadByName)
{
    make("show s01e01.mkv");
    make("show s01e02.mkv");
    make("Subs/show s01e01.srt");
    make("Subs/show s01e02.srt");
    make("Subs/English.srt");
    make("Subs/show s01e02/2_German.srt");
    EXPECT_EQ(found("show s01e01.mkv"), QStringList{"Subs/show s01e01.srt"});
    EXPECT_EQ(found("show s01e02.mkv"),
              (QStringList{"Subs/show s01e02.srt", "Subs/show s01e02/2_German.srt"}));
}

TEST_F(SidecarSubtitlesTest, AFurtherFolderIsReadByName)
{
    make("films/film.mkv");
    make("texts/film.en.srt");
    make("texts/other.srt");
    EXPECT_EQ(found("films/film.mkv", m_folder + "/texts"), QStringList{"texts/film.en.srt"});
    EXPECT_EQ(found("films/film.mkv", m_folder + "/films"), QStringList()) << "the folder itself, twice";
    EXPECT_EQ(found("films/film.mkv", m_folder + "/nowhere"), QStringList());
    EXPECT_EQ(found("films/film.mkv", m_folder + "/films/film.mkv"), QStringList()) << "a file";
}

TEST_F(SidecarSubtitlesTest, PicturesGoWithTheirIndex)
{
    make("film.mkv");
    make("film.idx");
    make("film.sub");
    make("film.en.sub");
    EXPECT_EQ(found("film.mkv"), (QStringList{"film.idx", "film.en.sub"}));
}

TEST_F(SidecarSubtitlesTest, WhatIsNoFileOrEmptyIsLeftOut)
{
    make("film.mkv");
    make("film.srt", "");
    make("film.en.srt/inside.txt");
    make("film.txt");
    make("film.nfo");
    ASSERT_EQ(::mkfifo((m_folder + "/film.de.srt").toStdString().c_str(), 0600), 0);
    ASSERT_TRUE(QFile::link(m_folder + "/gone.srt", m_folder + "/film.fr.srt"));
    ASSERT_TRUE(QFile::link(m_folder, m_folder + "/Subs"));
    EXPECT_EQ(found("film.mkv"), QStringList());
}

TEST_F(SidecarSubtitlesTest, NamesOfAllScriptsAndStrangeOnes)
{
    make("фильм.mkv");
    make("фильм.ru.srt");
    make("-x --y.mkv");
    make("-x --y.srt");
    make("a[b]{c}.mkv");
    make("a[b]{c}.en.srt");
    make(".mkv");
    EXPECT_EQ(found("фильм.mkv"), QStringList{"фильм.ru.srt"});
    EXPECT_EQ(found("-x --y.mkv"), QStringList{"-x --y.srt"});
    EXPECT_EQ(found("a[b]{c}.mkv"), QStringList{"a[b]{c}.en.srt"});
    (void)found(".mkv");
    EXPECT_TRUE(SidecarSubtitles::find("", "").empty());
    EXPECT_TRUE(SidecarSubtitles::find("/nowhere/film.mkv", "").empty());
}

TEST_F(SidecarSubtitlesTest, AFolderOfManyFilesIsReadFast)
{
    make("film 0001.mkv");
    for (int i = 0; i < 3000; ++i)
        make(QString("film %1.%2").arg(i, 4, 10, QChar('0')).arg(i % 2 ? "srt" : "avi"), "x");
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(found("film 0001.mkv"), QStringList{"film 0001.srt"});
    EXPECT_LT(timer.elapsed(), 2000);
}
