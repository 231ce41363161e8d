// Three hundred broken files: every part of the engine that opens a file must answer in time, and the next
// good file must work as before.
#include "MediaClips.h"

#include "engine/PictureGrabber.h"
#include "engine/SourceProbe.h"
#include "engine/ThumbnailSession.h"

#include "play/PlayRig.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr int PerFormat = 60;
constexpr int PlayEvery = 10;
// Each call bounds itself at five seconds; the rest is for a busy machine.
constexpr int LongestCallMs = 9000;

struct Format {
    const char *ending;
    const char *arguments;
};
constexpr Format formats[] = {
    {"mkv",
     "-f lavfi -i testsrc2=size=64x48:rate=10:duration=1 -f lavfi -i sine=duration=1 -c:v libx264 -preset "
     "ultrafast -pix_fmt yuv420p -threads 1 -c:a aac -shortest"},
    {"mp4",
     "-f lavfi -i testsrc2=size=64x48:rate=10:duration=1 -f lavfi -i sine=duration=1 -c:v libx264 -preset "
     "ultrafast -pix_fmt yuv420p -threads 1 -c:a aac -shortest"},
    {"avi",
     "-f lavfi -i testsrc2=size=64x48:rate=10:duration=1 -f lavfi -i sine=duration=1 -c:v mpeg4 -threads 1 "
     "-c:a mp2 -shortest"},
    {"mp3", "-f lavfi -i sine=duration=1 -c:a libmp3lame"},
    {"flac", "-f lavfi -i sine=duration=1"}};

QByteArray mutated(QByteArray bytes, int round, std::mt19937 &random)
{
    const auto below = [&random](int end) { return int(random() % unsigned(std::max(1, end))); };
    switch (round % 5) {
    case 0: // bits, anywhere
        for (int i = 0; i < 40; ++i) {
            char &byte = bytes.data()[below(bytes.size())];
            byte = char(byte ^ (1 << below(8)));
        }
        break;
    case 1: // cut off
        bytes.truncate(below(bytes.size()));
        break;
    case 2: { // zeros
        const int from = below(bytes.size());
        const int count = below(std::min(bytes.size() - from, 4096));
        bytes.replace(from, count, QByteArray(count, '\0'));
        break;
    }
    case 3: // the headers, where sizes and counts stand
        for (int i = 0; i < 12; ++i)
            bytes.data()[below(std::min(bytes.size(), 600))] = char(random());
        break;
    default: // a piece out of the middle
        bytes.remove(below(bytes.size()), 1 + below(2000));
        break;
    }
    return bytes;
}

class Corpus : public testing::TestWithParam<Format> {};

void expectGoodFile()
{
    EXPECT_EQ(SourceProbe::describe(MediaClips::pattern()).width, 320);
    Picture picture;
    PictureGrabber::Request request;
    request.path = MediaClips::pattern();
    EXPECT_TRUE(PictureGrabber::grab(request, DriveTable(), picture));
}

TEST_P(Corpus, BrokenFilesAreAnsweredInTimeAndTheNextGoodFileWorks)
{
    const QString ending = QString::fromLatin1(GetParam().ending);
    const QString original = TestDiscs::clip(
        QStringLiteral("tiny.") + ending,
        QString::fromLatin1(GetParam().arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    ASSERT_FALSE(original.isEmpty()) << qPrintable(TestDiscs::error());
    const QByteArray whole = MediaClips::contentsOf(original);
    QTemporaryDir folder;
    std::mt19937 random(20 + unsigned(ending.size()) + unsigned(ending[0].toLatin1()));
    QElapsedTimer timer;
    const auto expectInTime = [&](const char *what, int round) {
        EXPECT_LT(timer.restart(), LongestCallMs) << what << " of " << qPrintable(ending) << " " << round;
    };
    for (int round = 0; round < PerFormat; ++round) {
        const QString path = folder.filePath(QStringLiteral("broken.") + ending);
        ASSERT_TRUE(MediaClips::writeFile(path, mutated(whole, round, random)));
        timer.start();
        const vdFileInfo info = SourceProbe::describe(path.toStdString());
        EXPECT_LE(info.width, 65536);
        expectInTime("facts", round);

        ThumbnailSession::Request wanted;
        wanted.path = path.toStdString();
        wanted.width = 64;
        wanted.height = 48;
        if (const auto session = ThumbnailSession::open(wanted)) {
            expectInTime("opening", round);
            Picture picture;
            session->grab(500, round % 2 == 0, picture);
        }
        expectInTime("thumbnail", round);

        PictureGrabber::Request request;
        request.path = path.toStdString();
        Picture picture;
        const bool grabbed = PictureGrabber::grab(request, DriveTable(), picture);
        EXPECT_EQ(grabbed, !picture.bytes.empty());
        expectInTime("picture", round);
    }
    expectGoodFile();
}

TEST_P(Corpus, BrokenFilesPlayOrFailAndTheNextGoodFilePlays)
{
    const QString ending = QString::fromLatin1(GetParam().ending);
    const QString original = TestDiscs::clip(
        QStringLiteral("tiny.") + ending,
        QString::fromLatin1(GetParam().arguments).split(QLatin1Char(' '), Qt::SkipEmptyParts));
    ASSERT_FALSE(original.isEmpty()) << qPrintable(TestDiscs::error());
    const QByteArray whole = MediaClips::contentsOf(original);
    QTemporaryDir folder;
    std::mt19937 random(20 + unsigned(ending.size()) + unsigned(ending[0].toLatin1()));
    PlayRig rig;
    for (int round = 0; round < PerFormat; ++round) {
        const QByteArray bytes = mutated(whole, round, random);
        if (round % PlayEvery != PlayEvery / 2 - (round / PlayEvery) % 5)
            continue;
        const QString path = folder.filePath(QStringLiteral("broken.") + ending);
        ASSERT_TRUE(MediaClips::writeFile(path, bytes));
        if (!rig.begin(path.toStdString()))
            continue;
        const auto over = [](const PlayRecorder::Event &event) {
            return event.name == "Started" || event.name == "Failed" || event.name == "Ended";
        };
        EXPECT_TRUE(rig.recorder->waitUntil(over)) << qPrintable(ending) << " " << round;
        rig.close();
    }
    EXPECT_TRUE(rig.open(MediaClips::pattern()));
    EXPECT_EQ(rig.recorder->videoInfo.width, 320);
}

INSTANTIATE_TEST_SUITE_P(Formats, Corpus, testing::ValuesIn(formats),
                         [](const testing::TestParamInfo<Format> &row) { return row.param.ending; });

} // namespace
