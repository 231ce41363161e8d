#include "settings/FolderProbe.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <future>

namespace {

FolderProbe::Answer answerTo(FolderProbe &probe, const QString &folder, FolderNeed need)
{
    qRegisterMetaType<FolderProbe::Answer>("FolderProbe::Answer");
    QSignalSpy answered(&probe, &FolderProbe::answered);
    const int question = probe.ask(folder, need);
    EXPECT_TRUE(answered.wait());
    EXPECT_EQ(answered.first().at(0).toInt(), question);
    return answered.first().at(1).value<FolderProbe::Answer>();
}

} // namespace

TEST(FolderProbe, TellsWhatIsWrong)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("file")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    FolderProbe probe;
    EXPECT_EQ(answerTo(probe, folder.path(), FolderNeed::Writable), FolderProbe::Usable);
    EXPECT_EQ(answerTo(probe, folder.filePath(QStringLiteral("gone")), FolderNeed::Readable),
              FolderProbe::Missing);
    EXPECT_EQ(answerTo(probe, file.fileName(), FolderNeed::Readable), FolderProbe::NoFolder);
    EXPECT_EQ(answerTo(probe, QStringLiteral("relative"), FolderNeed::Readable), FolderProbe::Missing);
    for (const auto answer : {FolderProbe::Missing, FolderProbe::NoFolder, FolderProbe::NotReadable,
                              FolderProbe::NotWritable, FolderProbe::Silent})
        EXPECT_FALSE(FolderProbe::reason(answer).isEmpty());
    EXPECT_TRUE(FolderProbe::reason(FolderProbe::Usable).isEmpty());
}

TEST(FolderProbe, AFolderThatTakesNoFileIsNotWritable)
{
    // The kernel's own folder takes files from nobody, not even from the superuser.
    EXPECT_EQ(FolderProbe::askDisk(QStringLiteral("/proc"), FolderNeed::Writable), FolderProbe::NotWritable);
    EXPECT_EQ(FolderProbe::askDisk(QStringLiteral("/proc"), FolderNeed::Readable), FolderProbe::Usable);
}

TEST(FolderProbe, LeavesNothingBehind)
{
    QTemporaryDir folder;
    EXPECT_EQ(FolderProbe::askDisk(folder.path(), FolderNeed::Writable), FolderProbe::Usable);
    EXPECT_TRUE(
        QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).isEmpty());
}

TEST(FolderProbe, AFolderThatDoesNotAnswerIsGivenUpAndItsAnswerIgnored)
{
    std::promise<void> release;
    std::shared_future<void> released = release.get_future().share();
    FolderProbe probe(
        [released](const QString &, FolderNeed) {
            released.wait();
            return FolderProbe::Usable;
        },
        20);
    qRegisterMetaType<FolderProbe::Answer>("FolderProbe::Answer");
    QSignalSpy answered(&probe, &FolderProbe::answered);
    (void)probe.ask(QStringLiteral("/share"), FolderNeed::Writable);
    EXPECT_TRUE(probe.isBusy());
    ASSERT_TRUE(answered.wait());
    EXPECT_EQ(answered.first().at(1).value<FolderProbe::Answer>(), FolderProbe::Silent);
    EXPECT_FALSE(probe.isBusy());
    release.set_value();
    (void)probe.ask(QStringLiteral("/other"), FolderNeed::Writable);
    ASSERT_TRUE(answered.wait());
    EXPECT_EQ(answered.count(), 2);
    EXPECT_EQ(answered.last().at(0).toInt(), 2);
}
