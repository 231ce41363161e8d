#include "SampleClips.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace SampleClips {

namespace {

struct Output {
    const char *format;
    const char *options;
};

constexpr Output sounds[] = {
    {"mp3", "-c:a libmp3lame -id3v2_version 3"},
    {"flac", "-c:a flac"},
    {"m4a", "-c:a aac"},
    {"ogg", "-c:a libvorbis"},
    {"opus", "-c:a libopus"},
    {"wav", "-c:a pcm_s16le"},
    {"wma", "-c:a wmav2"},
    {"aiff", "-c:a pcm_s16be -write_id3v2 1"},
    {"wv", "-c:a wavpack"},
};

constexpr Output videos[] = {
    {"mp4", "-c:v mpeg4 -c:a aac"},     {"mkv", "-c:v mpeg4 -c:a aac"},      {"avi", "-c:v mpeg4 -c:a mp2"},
    {"ts", "-c:v mpeg2video -c:a mp2"}, {"mpg", "-c:v mpeg2video -c:a mp2"},
};

const QStringList soundTags{"title=Tone", "artist=Player", "album=Samples", "album_artist=Several",
                            "genre=Rock", "track=3/12",    "disc=2",        "date=2004-05-01"};

template<std::size_t Count>
void make(const QString &folder, const QStringList &input, const QStringList &tags,
          const Output (&outputs)[Count])
{
    QStringList arguments{"-v", "error", "-nostdin", "-y"};
    arguments << input;
    for (const Output &output : outputs) {
        for (const QString &tag : tags)
            arguments << "-metadata" << tag;
        arguments << QString(output.options).split(' ') << "-t" << (tags.size() > 1 ? "0.4" : "1")
                  << folder + "/clip." + output.format;
    }
    QProcess ffmpeg;
    ffmpeg.setProcessChannelMode(QProcess::MergedChannels);
    ffmpeg.start("ffmpeg", arguments);
    const bool made = ffmpeg.waitForFinished(60000) && ffmpeg.exitCode() == 0;
    EXPECT_TRUE(made) << ffmpeg.readAll().constData();
}

template<std::size_t Count>
QStringList names(const Output (&outputs)[Count])
{
    QStringList result;
    for (const Output &output : outputs)
        result << output.format;
    return result;
}

QHash<QString, QByteArray> makeAll()
{
    QTemporaryDir folder;
    make(folder.path(), {"-f", "lavfi", "-i", "sine=frequency=440"}, soundTags, sounds);
    make(folder.path(),
         {"-f", "lavfi", "-i", "testsrc=size=64x48:rate=25", "-f", "lavfi", "-i", "sine=frequency=440"},
         {"title=Bars"}, videos);
    QHash<QString, QByteArray> result;
    for (const QString &format : soundFormats() + videoFormats()) {
        QFile file(folder.filePath("clip." + format));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(format);
        result.insert(format, file.readAll());
    }
    return result;
}

} // namespace

QStringList soundFormats()
{
    return names(sounds);
}

QStringList videoFormats()
{
    return names(videos);
}

QByteArray bytes(const QString &format)
{
    static const QHash<QString, QByteArray> clips = makeAll();
    EXPECT_FALSE(clips.value(format).isEmpty()) << qPrintable(format);
    return clips.value(format);
}

void copy(const QString &format, const QString &path)
{
    write(path, bytes(format));
}

void write(const QString &path, const QByteArray &content)
{
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size()) << qPrintable(path);
}

QByteArray png(unsigned int colour)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray result;
    QBuffer buffer(&result);
    EXPECT_TRUE(image.save(&buffer, "PNG"));
    return result;
}

QByteArray damaged(const QByteArray &bytes, unsigned int seed)
{
    std::mt19937 random(seed);
    const auto below = [&](int limit) { return limit > 0 ? int(random() % unsigned(limit)) : 0; };
    QByteArray result = bytes;
    // Most of what decides stands at the beginning.
    const auto place = [&] { return below(random() % 2 ? result.size() : qMin(result.size(), 600)); };
    for (int change = 0, count = 1 + below(12); change < count && !result.isEmpty(); ++change) {
        const int at = place();
        switch (below(6)) {
        case 0:
            result.truncate(at);
            break;
        case 1:
            result.remove(at, below(64));
            break;
        case 2:
            result.insert(at, result.mid(below(result.size()), below(256)));
            break;
        case 3:
            for (int i = at; i < qMin(at + 4, result.size()); ++i)
                result[i] = '\xFF';
            break;
        default:
            result[at] = char(random());
            break;
        }
    }
    return result;
}

} // namespace SampleClips
