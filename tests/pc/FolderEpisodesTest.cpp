#include "playcontrol/FolderEpisodes.h"

#include "support/Eventually.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class FolderEpisodesTest : public testing::Test {
protected:
    QString put(const QString &name, const QByteArray &content = "x")
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }

    // The file's path below the folder, empty for none.
    QString next(const QString &path) const
    {
        const QString found = FolderEpisodes::find(path).path;
        return found.isEmpty() ? found : QDir(m_folder.path()).relativeFilePath(found);
    }

    QTemporaryDir m_folder;
};

} // namespace

TEST_F(FolderEpisodesTest, TheNearestLaterEpisodeOfTheShow)
{
    const QString second = put("Show S01E02.mkv");
    put("Show S01E01.mkv");
    put("Show S01E10.mkv");
    put("Show S01E03.mp4");
    put("Other S01E03.mkv");
    put("Show S01E03.srt");
    put("Show S01E03.nfo");
    const NextEpisode next = FolderEpisodes::find(second);
    EXPECT_EQ(QFileInfo(next.path).fileName(), "Show S01E03.mp4");
    EXPECT_EQ(next.title, "Show S01E03");
}

TEST_F(FolderEpisodesTest, AMissingNumberIsSteppedOver)
{
    const QString second = put("Show.1x02.mkv");
    put("Show.1x05.mkv");
    EXPECT_EQ(next(second), "Show.1x05.mkv");
}

TEST_F(FolderEpisodesTest, TheLastOfASeasonLeadsIntoTheNextOne)
{
    const QString last = put("Show/Season 01/Show S01E02.mkv");
    put("Show/Season 01/Show S01E01.mkv");
    put("Show/Season 03/Show S03E01.mkv");
    put("Show/Season 02/Show S02E02.mkv");
    put("Show/Season 02/Show S02E01.mkv");
    put("Show/Specials/Show S00E01.mkv");
    EXPECT_EQ(next(last), "Show/Season 02/Show S02E01.mkv");
}

TEST_F(FolderEpisodesTest, NothingFollowsTheLastEpisodeAFilmASpecialOrAFileThatIsGone)
{
    EXPECT_EQ(next(put("Show S01E02.mkv")), QString());
    EXPECT_EQ(next(put("Film (2020).mkv")), QString());
    EXPECT_EQ(next(put("Show S00E09.mkv")), QString());
    EXPECT_EQ(next(m_folder.filePath("Show S01E01.mkv")), QString());
    EXPECT_EQ(next("D"), QString());
    EXPECT_EQ(next(""), QString());
}

TEST_F(FolderEpisodesTest, ThePictureIsTheEpisodesOwnBeforeThatOfTheShow)
{
    const QString first = put("Show/Season 1/E01.mkv");
    const QString second = put("Show/Season 1/E02.mkv");
    put("Show/Season 1/E03.mkv");
    put("Show/Season 1/E02-thumb.jpg", "own");
    put("Show/poster.jpg", "show");
    EXPECT_EQ(FolderEpisodes::find(first).poster, "own");
    EXPECT_EQ(FolderEpisodes::find(second).poster, "show");
}

TEST_F(FolderEpisodesTest, AFolderNamedAsAPictureIsNone)
{
    const QString first = put("E01.mkv");
    put("E02.mkv");
    ASSERT_TRUE(QDir(m_folder.path()).mkdir("poster.jpg"));
    EXPECT_EQ(next(first), "E02.mkv");
    EXPECT_TRUE(FolderEpisodes::find(first).poster.isEmpty());
}

TEST_F(FolderEpisodesTest, AnswersLaterAndOnlyTheLastQuestion)
{
    const QString first = put("Show S01E01.mkv");
    const QString second = put("Show S01E02.mkv");
    put("Show S01E03.mkv");
    FolderEpisodes episodes;
    int early = 0;
    QStringList answers;
    episodes.requestNext(first, [&](const NextEpisode &) { ++early; });
    episodes.requestNext(second,
                         [&](const NextEpisode &next) { answers << QFileInfo(next.path).fileName(); });
    EXPECT_TRUE(answers.isEmpty());
    ASSERT_EVENTUALLY(!answers.isEmpty());
    EXPECT_EQ(answers, QStringList("Show S01E03.mkv"));
    EXPECT_EQ(early, 0);
}

TEST_F(FolderEpisodesTest, GoneBeforeItsAnswer)
{
    const QString first = put("Show S01E01.mkv");
    int answers = 0;
    {
        FolderEpisodes episodes;
        episodes.requestNext(first, [&](const NextEpisode &) { ++answers; });
    }
    FolderEpisodes other;
    bool isDone = false;
    other.requestNext(first, [&](const NextEpisode &) { isDone = true; });
    ASSERT_EVENTUALLY(isDone);
    EXPECT_EQ(answers, 0);
}
