// Clips whose content tells the time, and what tests need around them.
#pragma once

#include "discs/TestDiscs.h"

#include "engine/Picture.h"

#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include <string>

namespace MediaClips {

// Grey pictures, ten a second for ten seconds, each 2 levels brighter than the one before (levels of video,
// from 16 on); a key frame each second.
constexpr int LadderRate = 10;
constexpr int LadderSeconds = 10;
std::string ladder(const std::string &ending = "mkv");
// Number of the ladder's picture that a thumbnail shows.
int ladderStep(const Picture &picture);

// Two seconds, moving pattern, 320 by 180.
std::string pattern();
// The same, to be shown turned by 90 degrees clockwise; red stands at the top once it is turned.
std::string turned();
// Pixels twice as wide as high: 160 by 180, shown as 320 by 180.
std::string wide();
// Eight seconds: black but for the part from second 2.5 to 3.5.
std::string mostlyBlack();
// One second of H.265 at 3840 by 2160.
std::string hevc4K();
// Five seconds of stereo at 44100 Hz; a sample at second t is t / 10. Signed 16 bit.
std::string ramp();
// Sound with a cover picture, red, 200 by 100.
std::string cover();
// Sound alone.
std::string sound();

// A local file's text, and back.
inline QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
inline bool writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace MediaClips
