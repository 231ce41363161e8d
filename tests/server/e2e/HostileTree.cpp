#include "HostileTree.h"

#include "support/SampleClips.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace HostileTree {

namespace {

constexpr int LongestName = 255;
constexpr int SuffixLength = 4;
// PATH_MAX is 4096 with the closing zero; the file's own name must fit as well.
constexpr int LongestFolder = 4040;
constexpr int StepLength = 200;

bool link(const QString &to, const QString &path)
{
    return ::symlink(QFile::encodeName(to).constData(), QFile::encodeName(path).constData()) == 0;
}

} // namespace

QStringList names()
{
    return {QStringLiteral("line\nbreak"),
            QStringLiteral("quotes ' \" ` ; --"),
            QString::fromUtf8("right \u202Eto left"),
            QString::fromUtf8("emoji \U0001F3B5"),
            QStringLiteral("-rf"),
            QStringLiteral("100%25 %s %n %00"),
            QStringLiteral("back\\slash"),
            QStringLiteral("<b>&amp;</b>"),
            QString(LongestName - SuffixLength, QLatin1Char('l'))};
}

QString deepFolder(const QString &folder)
{
    QString deep = folder;
    while (deep.size() + StepLength < LongestFolder)
        deep += QLatin1Char('/') + QString(StepLength - 1, QLatin1Char('d'));
    return QDir().mkpath(deep) ? deep : QString();
}

bool writeUndecodable(const QString &folder, const QByteArray &content)
{
    const QByteArray path = QFile::encodeName(folder) + "/bytes \xff\xfe.mp3";
    const int file = ::open(path.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
    if (file < 0)
        return false;
    const bool isWritten = ::write(file, content.constData(), std::size_t(content.size())) == content.size();
    return ::close(file) == 0 && isWritten;
}

void makeBroken(const QString &folder, const QString &outside)
{
    const QString base = folder + QLatin1Char('/');
    SampleClips::write(base + "empty.mkv", {});
    SampleClips::write(base + "words.mkv", "No film at all, but a text.\n");
    const QByteArray film = SampleClips::bytes("mp4");
    SampleClips::write(base + "cut.mp4", film.left(film.size() / 3));
    const QByteArray song = SampleClips::bytes("mp3");
    SampleClips::write(base + "cut.mp3", song.left(song.size() / 5));
    SampleClips::write(base + "empty.mp3", {});
    ASSERT_EQ(::mkfifo(QFile::encodeName(base + "pipe.mp4").constData(), 0644), 0);
    ASSERT_EQ(::mkfifo(QFile::encodeName(base + "pipe.mp3").constData(), 0644), 0);
    SampleClips::copy("mkv", outside + "/Elsewhere (2001).mkv");
    SampleClips::copy("mp3", outside + "/elsewhere.mp3");
    ASSERT_TRUE(link(outside, base + "away"));
    ASSERT_TRUE(link(outside + "/Elsewhere (2001).mkv", base + "Linked (2001).mkv"));
    ASSERT_TRUE(link(outside + "/elsewhere.mp3", base + "linked.mp3"));
    ASSERT_TRUE(link(folder, base + "loop"));
    ASSERT_TRUE(link("nowhere.mkv", base + "broken.mkv"));
}

} // namespace HostileTree
