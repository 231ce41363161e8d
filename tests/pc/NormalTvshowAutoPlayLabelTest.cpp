#include "overlays/NormalTvshowAutoPlayLabel.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QString Episode = QStringLiteral("/shows/Harbour/S01E01.mkv");
const QString Next = QStringLiteral("/shows/Harbour/S01E02.mkv");

class FakeSource final : public INextEpisodeSource {
public:
    void requestNext(const QString &path, Answer answer) override
    {
        asked << path;
        answers << answer;
    }

    QStringList asked;
    QList<Answer> answers;
};

class NormalTvshowAutoPlayLabelTest : public testing::Test {
protected:
    NormalTvshowAutoPlayLabelTest() { window.show(); }

    void begin()
    {
        label.setSource(Episode);
        source.answers.last()({Next, QStringLiteral("Harbour S1E2: Low Tide"), {}});
    }
    void time(const QString &text) { label.slot_setMetaInfo(QPlayer::QPlayerMetaType_Time, text); }
    // The note comes on a later turn of the event loop.
    void turn()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    QPushButton *button(const char *text)
    {
        for (QPushButton *candidate : label.findChildren<QPushButton *>()) {
            if (candidate->text() == QLatin1String(text))
                return candidate;
        }
        return nullptr;
    }

    FakeSource source;
    QWidget window;
    NormalTvshowAutoPlayLabel label{&source, &window};
    QSignalSpy play{&label, &NormalTvshowAutoPlayLabel::sig_playSource};
};

} // namespace

TEST_F(NormalTvshowAutoPlayLabelTest, AsksForTheEpisodeAfterTheSource)
{
    begin();
    EXPECT_EQ(source.asked, QStringList({Episode}));
    EXPECT_EQ(label.nextPath(), Next);
    EXPECT_EQ(label.accessibleName(), "Up Next: Harbour S1E2: Low Tide");
    QStringList texts;
    for (const QLabel *part : label.findChildren<QLabel *>())
        texts << part->text();
    EXPECT_TRUE(texts.contains("Up Next: "));
    EXPECT_TRUE(texts.contains("Harbour S1E2: Low Tide"));
    EXPECT_FALSE(label.isOpen());
}

TEST_F(NormalTvshowAutoPlayLabelTest, ComesWhenTheTimeReachesTotalMinus30)
{
    begin();
    time("00:44:29 / 00:45:00");
    turn();
    EXPECT_FALSE(label.isOpen());
    time("00:44:30 / 00:45:00");
    EXPECT_FALSE(label.isOpen());
    turn();
    EXPECT_TRUE(label.isOpen());
}

TEST_F(NormalTvshowAutoPlayLabelTest, SecondsThatAreSkippedDoNotHoldItBack)
{
    begin();
    time("00:44:55 / 00:45:00");
    turn();
    EXPECT_TRUE(label.isOpen());
}

TEST_F(NormalTvshowAutoPlayLabelTest, OtherTextsAndUnknownLengthsAreIgnored)
{
    begin();
    label.slot_setMetaInfo(QPlayer::QPlayerMetaType_Chapter, "00:44:55 / 00:45:00");
    for (const char *text : {"", "None", "00:00:00 / 00:00:00", "x / y"})
        time(text);
    turn();
    EXPECT_FALSE(label.isOpen());
}

TEST_F(NormalTvshowAutoPlayLabelTest, WithoutANextEpisodeNothingComes)
{
    label.setSource(Episode);
    source.answers.last()({});
    time("00:44:55 / 00:45:00");
    turn();
    EXPECT_FALSE(label.isOpen());
    EXPECT_TRUE(label.nextPath().isEmpty());
}

TEST_F(NormalTvshowAutoPlayLabelTest, PlayNowHidesItAndPlaysTheNextEpisode)
{
    begin();
    time("00:44:30 / 00:45:00");
    turn();
    button("Play Now")->click();
    ASSERT_EQ(play.count(), 1);
    EXPECT_EQ(play.at(0).at(0).toString(), Next);
    EXPECT_FALSE(label.isOpen());
    button("Play Now")->click();
    EXPECT_EQ(play.count(), 1);
}

TEST_F(NormalTvshowAutoPlayLabelTest, NotThisTimeHidesItAndForgetsTheNextEpisode)
{
    begin();
    time("00:44:30 / 00:45:00");
    turn();
    button("Not this time")->click();
    EXPECT_FALSE(label.isOpen());
    EXPECT_TRUE(label.nextPath().isEmpty());
    time("00:44:31 / 00:45:00");
    turn();
    EXPECT_FALSE(label.isOpen());
    EXPECT_EQ(play.count(), 0);
}

TEST_F(NormalTvshowAutoPlayLabelTest, LeftAloneItKeepsTheNextEpisodeForTheEnd)
{
    begin();
    time("00:44:30 / 00:45:00");
    turn();
    time("00:45:00 / 00:45:00");
    EXPECT_EQ(label.nextPath(), Next);
    EXPECT_TRUE(label.isOpen());
}

TEST_F(NormalTvshowAutoPlayLabelTest, GoingBackTakesItAwayAndOffersItAgain)
{
    begin();
    time("00:44:30 / 00:45:00");
    turn();
    time("00:10:00 / 00:45:00");
    EXPECT_FALSE(label.isOpen());
    time("00:44:40 / 00:45:00");
    turn();
    EXPECT_TRUE(label.isOpen());
}

TEST_F(NormalTvshowAutoPlayLabelTest, NewSourceForgetsTheOldOne)
{
    begin();
    time("00:44:30 / 00:45:00");
    turn();
    label.setSource(QStringLiteral("/films/a.mkv"));
    EXPECT_FALSE(label.isOpen());
    EXPECT_TRUE(label.nextPath().isEmpty());
}

TEST_F(NormalTvshowAutoPlayLabelTest, AnswerThatComesTooLateIsDropped)
{
    label.setSource(Episode);
    label.setSource(QStringLiteral("/films/a.mkv"));
    source.answers.first()({Next, QStringLiteral("Late"), {}});
    EXPECT_TRUE(label.nextPath().isEmpty());
}

TEST_F(NormalTvshowAutoPlayLabelTest, SourceThatChangesBeforeItCouldShowShowsNothing)
{
    begin();
    time("00:44:30 / 00:45:00");
    label.setSource(QStringLiteral("/films/a.mkv"));
    turn();
    EXPECT_FALSE(label.isOpen());
}

TEST_F(NormalTvshowAutoPlayLabelTest, LongTitleIsCutInsideTheCard)
{
    label.setSource(Episode);
    source.answers.last()({Next, QString(400, QLatin1Char('W')), {}});
    for (const QLabel *part : label.findChildren<QLabel *>())
        EXPECT_LE(part->sizeHint().width(), label.width());
    EXPECT_LE(label.minimumSizeHint().width(), label.sizeHint().width());
}

TEST(NormalTvshowAutoPlayLabelLifeTest, AnswerAfterTheNoteIsGoneIsHarmless)
{
    FakeSource source;
    auto label = std::make_unique<NormalTvshowAutoPlayLabel>(&source);
    label->setSource(Episode);
    label.reset();
    source.answers.first()({Next, QStringLiteral("Late"), {}});
}

TEST(NormalTvshowAutoPlayLabelLifeTest, WithoutALibraryNothingIsOffered)
{
    NormalTvshowAutoPlayLabel label(nullptr);
    label.setSource(Episode);
    EXPECT_TRUE(label.nextPath().isEmpty());
}
