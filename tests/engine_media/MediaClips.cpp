#include "MediaClips.h"

#include <cmath>

namespace MediaClips {

namespace {

std::string made(const QString &name, const QString &arguments)
{
    const QString path = TestDiscs::clip(name, arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    if (path.isEmpty())
        std::fprintf(stderr, "%s\n", qPrintable(TestDiscs::error()));
    return path.toStdString();
}

} // namespace

std::string ladder(const std::string &ending)
{
    return made(
        QStringLiteral("ladder.") + QString::fromStdString(ending),
        QStringLiteral("-f lavfi -i color=black:size=160x90:rate=%1:duration=%2 "
                       "-vf geq=lum=16+2*N:cb=128:cr=128 -c:v libx264 -preset ultrafast -qp 0 -g %1 -bf 0 "
                       "-pix_fmt yuv420p -threads 1")
            .arg(LadderRate)
            .arg(LadderSeconds));
}

int ladderStep(const Picture &picture)
{
    if (picture.bytes.size() < 4)
        return -1;
    // Levels 16 to 235 of video spread over 0 to 255.
    const std::size_t middle =
        (std::size_t(picture.height / 2) * std::size_t(picture.width) + std::size_t(picture.width / 2)) * 4;
    return int(std::lround(picture.bytes[middle] * 219.0 / 255.0 / 2.0));
}

std::string pattern()
{
    return made(
        QStringLiteral("pattern.mp4"),
        QStringLiteral("-f lavfi -i testsrc2=size=320x180:rate=25:duration=2 -c:v libx264 -preset ultrafast "
                       "-g 25 -pix_fmt yuv420p -threads 1"));
}

std::string turned()
{
    // Before it is turned, the top of the picture is its left edge.
    const std::string flat =
        made(QStringLiteral("flat.mp4"),
             QStringLiteral("-f lavfi -i color=blue:size=320x180:rate=10:duration=1 "
                            "-vf drawbox=x=0:y=0:w=80:h=180:color=red:t=fill -c:v libx264 -preset ultrafast "
                            "-pix_fmt yuv420p -threads 1"));
    // The encoder drops the mark, a copy keeps it.
    return made(QStringLiteral("turned.mp4"),
                QStringLiteral("-i %1 -c copy -metadata:s:v:0 rotate=270").arg(QString::fromStdString(flat)));
}

std::string wide()
{
    return made(
        QStringLiteral("wide.mkv"),
        QStringLiteral("-f lavfi -i testsrc2=size=160x180:rate=10:duration=1 -vf setsar=2/1 -c:v libx264 "
                       "-preset ultrafast -pix_fmt yuv420p -threads 1"));
}

std::string mostlyBlack()
{
    return made(
        QStringLiteral("mostly-black.mkv"),
        QStringLiteral("-f lavfi -i testsrc2=size=160x90:rate=10:duration=8 "
                       "-vf drawbox=color=black:t=fill:enable=not(between(t\\,2.5\\,3.5)) -c:v libx264 "
                       "-preset ultrafast -g 5 -pix_fmt yuv420p -threads 1"));
}

std::string hevc4K()
{
    return made(
        QStringLiteral("uhd.mkv"),
        QStringLiteral("-f lavfi -i color=green:size=3840x2160:rate=5:duration=1 -c:v libx265 -preset "
                       "ultrafast -x265-params log-level=none:pools=1 -pix_fmt yuv420p"));
}

std::string ramp()
{
    return made(QStringLiteral("ramp.wav"),
                QStringLiteral("-f lavfi -i aevalsrc=t/10|t/10:sample_rate=44100:duration=5 -c:a pcm_s16le"));
}

std::string cover()
{
    return made(QStringLiteral("cover.mp3"),
                QStringLiteral(
                    "-f lavfi -i sine=frequency=440:duration=3 -f lavfi -i "
                    "color=red:size=200x100:rate=1:duration=1 -map 0:a -map 1:v -c:a libmp3lame -c:v mjpeg "
                    "-frames:v 1 -disposition:v attached_pic -id3v2_version 3"));
}

std::string sound()
{
    return made(QStringLiteral("sound.flac"), QStringLiteral("-f lavfi -i sine=frequency=440:duration=2"));
}

} // namespace MediaClips
