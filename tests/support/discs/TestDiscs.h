// Discs for tests, made by ffmpeg, dvdauthor and genisoimage on first use and kept in the build folder.
//
// Every function answers an absolute path, or an empty text when a tool is missing or failed; error() then
// tells why. Several processes may ask at once: one makes the disc, the others wait for it. What is answered
// is shared: a test that changes a disc works on a copy of its own (copyOf()).
//
// Both discs hold two titles: the main one with four chapters, five seconds apart, and a short one. Sound:
// two tracks, English (440 Hz) and German (880 Hz). The DVD has one English bitmap subtitle from second 1
// to 4.
#pragma once

#include <QString>
#include <QStringList>

namespace TestDiscs {

constexpr int MainTitleMs = 20000;
constexpr int MainTitleChapters = 4;
constexpr int ChapterMs = 5000;
constexpr int ShortTitleMs = 6000;
constexpr int TitleCount = 2;
constexpr int MainTitle = 1;
// Durations on a disc are rounded to frames and to units of play.
constexpr int ToleranceMs = 600;

constexpr const char *DvdVolumeName = "QUORIN_TEST_DVD";
constexpr const char *BluRayVolumeName = "QUORIN_TEST_BD";

constexpr int DvdWidth = 352;
constexpr int DvdHeight = 288;
constexpr int BluRayWidth = 320;
constexpr int BluRayHeight = 180;

// Folder that holds VIDEO_TS.
QString dvdFolder();
// The same as an ISO image.
QString dvdImage();
// Folder that holds BDMV.
QString bluRayFolder();
// The same as a UDF image.
QString bluRayImage();
// A disc folder with the structure of an Ultra HD disc around the same streams.
QString ultraHdFolder();

// A media file made by ffmpeg from these arguments and kept under this name.
QString clip(const QString &name, const QStringList &ffmpegArguments);

// Copies a file or a folder with all that is in it.
bool copyOf(const QString &source, const QString &target);

// Why the last function of this thread answered an empty text.
QString error();

} // namespace TestDiscs
