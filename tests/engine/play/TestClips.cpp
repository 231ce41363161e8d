#include "TestClips.h"

#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QTemporaryDir>

#include <stdexcept>
#include <vector>

namespace {

struct ClipRow {
    const char *name;
    QStringList arguments; // between "ffmpeg -y" and the target
};

QStringList video(const QString &source)
{
    return {"-f", "lavfi", "-i", source};
}

QStringList sound(int frequency, double seconds)
{
    return {"-f", "lavfi", "-i",
            QString("sine=frequency=%1:sample_rate=44100:duration=%2").arg(frequency).arg(seconds)};
}

QStringList h264(int keyFrames)
{
    return {"-c:v",
            "libx264",
            "-preset",
            "ultrafast",
            "-pix_fmt",
            "yuv420p",
            "-g",
            QString::number(keyFrames),
            "-keyint_min",
            QString::number(keyFrames),
            "-sc_threshold",
            "0"};
}

const QString moving = QStringLiteral("testsrc2=size=320x180:rate=25:duration=%1");

std::vector<ClipRow> clipRows()
{
    const QStringList aac{"-c:a", "aac", "-b:a", "64k"};
    return {
        {"plain.mp4", video(moving.arg(10)) + sound(440, 10) + h264(25) + aac},
        {"short.mp4", video(moving.arg(1)) + sound(440, 1) + h264(25) + aac},
        {"long.mp4", video(moving.arg(60)) + sound(440, 60) + h264(250) + aac},
        {"long.ts", video(moving.arg(60)) + sound(440, 60) + h264(250) + QStringList{"-bf", "2"} + aac},
        {"onekey.ts", video(moving.arg(60)) + h264(100000)},
        {"clip.avi", video(moving.arg(3)) + sound(440, 3) + QStringList{"-c:v", "mpeg4", "-c:a", "mp2"}},
        {"song.flac", sound(440, 4) + QStringList{"-ac", "2", "-c:a", "flac"}},
        {"silent.mp4", video(moving.arg(3)) + h264(25)},
        {"hevc4k.mkv",
         video("color=c=gray:size=3840x2160:rate=10:duration=1")
             + QStringList{"-c:v", "libx265", "-preset", "ultrafast", "-x265-params", "log-level=error"}},
        {"hdr.mkv",
         video(moving.arg(2))
             + QStringList{"-c:v", "libx265", "-preset", "ultrafast", "-pix_fmt", "yuv420p10le",
                           "-x265-params",
                           "log-level=error:colorprim=bt2020:transfer=smpte2084:colormatrix=bt2020nc",
                           "-color_primaries", "bt2020", "-color_trc", "smpte2084", "-colorspace",
                           "bt2020nc"}},
        {"interlaced.mpg",
         video("testsrc2=size=720x576:rate=50:duration=2") + sound(440, 2)
             + QStringList{"-vf", "tinterlace=interleave_top,fieldorder=tff,setfield=tff", "-c:v",
                           "mpeg2video", "-flags", "+ilme+ildct", "-b:v", "4M", "-c:a", "mp2"}},
        {"sbs.mkv",
         QStringList{"-f", "lavfi", "-i", "color=c=red:size=320x180:rate=25:duration=2", "-f", "lavfi", "-i",
                     "color=c=cyan:size=320x180:rate=25:duration=2", "-filter_complex", "hstack"}
             + h264(25)},
        {"red.mp4", video("color=c=red:size=320x180:rate=25:duration=3") + h264(25)},
        {"whole.mp4", video(moving.arg(3)) + sound(440, 3) + h264(25) + aac},
    };
}

const char *const dialogue =
    "1\n00:00:00,000 --> 00:00:09,500\nHello\n\n2\n00:00:09,600 --> 00:00:09,900\nBye\n";

void runFfmpeg(const QStringList &arguments)
{
    QProcess ffmpeg;
    ffmpeg.start("ffmpeg", QStringList{"-v", "error", "-nostdin", "-y"} + arguments);
    if (!ffmpeg.waitForFinished(120000) || ffmpeg.exitCode() != 0)
        throw std::runtime_error("ffmpeg: " + ffmpeg.readAllStandardError().toStdString());
}

QString folder()
{
    return QStringLiteral(QUORIN_CLIP_DIR);
}

// chapter: length of the first two of three.
void makeTracks(const QString &target, int seconds, int chapter)
{
    const QString chapters = folder() + QStringLiteral("/chapters-%1.txt").arg(seconds);
    QString marks = QStringLiteral(";FFMETADATA1\n");
    const char *const titles[] = {"One", "Two", "Three"};
    for (int i = 0; i < 3; ++i) {
        marks += QStringLiteral("[CHAPTER]\nTIMEBASE=1/1\nSTART=%1\nEND=%2\ntitle=%3\n")
                     .arg(i * chapter)
                     .arg(i < 2 ? (i + 1) * chapter : seconds)
                     .arg(QLatin1String(titles[i]));
    }
    TestClips::write(chapters.toStdString(), marks.toStdString());
    const QString text = QString::fromStdString(TestClips::path("dark.srt"));
    QStringList arguments = video(moving.arg(seconds));
    for (const int frequency : {440, 660, 880})
        arguments += sound(frequency, seconds);
    for (int i = 0; i < 3; ++i)
        arguments += {"-i", text};
    arguments += {"-i", chapters, "-map_metadata", "7"};
    for (int i = 0; i < 7; ++i)
        arguments += {"-map", QString::number(i)};
    arguments += h264(25) + QStringList{"-c:a", "aac", "-b:a", "64k", "-c:s", "srt"};
    const char *const languages[] = {"eng", "ger", "fre"};
    const char *const names[] = {"English", "Deutsch", "Francais"};
    for (int i = 0; i < 3; ++i) {
        for (const char *kind : {"a", "s"}) {
            arguments +=
                {QString("-metadata:s:%1:%2").arg(kind).arg(i), QString("language=%1").arg(languages[i]),
                 QString("-metadata:s:%1:%2").arg(kind).arg(i), QString("title=%1").arg(names[i])};
        }
    }
    arguments += {"-disposition:a:0", "default", "-disposition:s", "0"};
    runFfmpeg(arguments + QStringList{"-t", QString::number(seconds), target});
}

void makeCover(const QString &target)
{
    const QString picture = folder() + "/cover.png";
    runFfmpeg(video("testsrc=size=120x120:rate=1:duration=1") + QStringList{"-frames:v", "1", picture});
    runFfmpeg(sound(440, 3)
              + QStringList{"-i", picture, "-map", "0", "-map", "1", "-c:a", "libmp3lame", "-c:v", "copy",
                            "-disposition:v", "attached_pic", target});
}

void makeTruncated(const QString &target)
{
    QFile whole(QString::fromStdString(TestClips::path("whole.mp4")));
    if (!whole.open(QIODevice::ReadOnly))
        throw std::runtime_error("whole.mp4");
    TestClips::write(target.toStdString(), whole.read(whole.size() / 3).toStdString());
}

void makeBroken(const QString &target)
{
    const QString valid = folder() + "/valid.avi";
    runFfmpeg(video(moving.arg(1)) + QStringList{"-c:v", "mpeg4", "-vtag", "XVID", valid});
    QFile file(valid);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("valid.avi");
    TestClips::write(target.toStdString(), file.readAll().replace("XVID", "QZQZ").toStdString());
}

void makeText(const QString &name, const QString &target)
{
    const std::string path = target.toStdString();
    if (name == "dark.srt") {
        TestClips::write(path, dialogue);
    } else if (name == "cyrillic.srt") {
        // "Привет" in code page 1251.
        TestClips::write(path, "1\n00:00:00,000 --> 00:00:09,500\n\xCF\xF0\xE8\xE2\xE5\xF2\n");
    } else if (name == "dark.ass") {
        TestClips::write(path,
                         "[Script Info]\nScriptType: v4.00+\n[V4+ Styles]\nFormat: Name, Fontname, Fontsize\n"
                         "Style: Default,Arial,20\n[Events]\nFormat: Start, End, Style, Text\n"
                         "Dialogue: 0:00:00.00,0:00:09.00,Default,Hello\n");
    } else if (name == "album.cue") {
        TestClips::write(path,
                         "FILE \"song.flac\" WAVE\n  TRACK 01 AUDIO\n    TITLE \"A\"\n    INDEX 01 00:00:00\n"
                         "  TRACK 02 AUDIO\n    TITLE \"B\"\n    INDEX 01 00:01:00\n"
                         "  TRACK 03 AUDIO\n    TITLE \"C\"\n    INDEX 01 00:02:00\n");
    }
}

void make(const QString &name, const QString &target)
{
    for (const ClipRow &row : clipRows()) {
        if (name == row.name) {
            runFfmpeg(row.arguments + QStringList{target});
            return;
        }
    }
    if (name == "tracks.mkv")
        makeTracks(target, 10, 3);
    else if (name == "film.mkv")
        makeTracks(target, 150, 40);
    else if (name == "cover.mp3")
        makeCover(target);
    else if (name == "truncated.mp4")
        makeTruncated(target);
    else if (name == "broken.avi")
        makeBroken(target);
    else
        makeText(name, target);
}

} // namespace

namespace TestClips {

std::string path(const std::string &name)
{
    QDir().mkpath(folder());
    const QString clip = QString::fromStdString(name);
    const QString target = folder() + "/" + clip;
    if (QFile::exists(target))
        return target.toStdString();
    if (clip == "truncated.mp4")
        (void)path("whole.mp4");
    if (clip == "tracks.mkv" || clip == "film.mkv")
        (void)path("dark.srt");
    if (clip == "album.cue")
        (void)path("song.flac");
    QLockFile lock(target + ".lock");
    lock.setStaleLockTime(180000);
    if (!lock.lock())
        throw std::runtime_error("lock " + name);
    if (!QFile::exists(target)) {
        const QString draft = folder() + "/draft-" + clip;
        make(clip, draft);
        if (!QFile::rename(draft, target))
            throw std::runtime_error("no clip " + name);
    }
    return target.toStdString();
}

std::string scratchFolder()
{
    QTemporaryDir folder;
    folder.setAutoRemove(false); // the private home of the test program goes as a whole
    return folder.path().toStdString();
}

void write(const std::string &path, const std::string &bytes)
{
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        throw std::runtime_error("cannot write " + path);
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

} // namespace TestClips
