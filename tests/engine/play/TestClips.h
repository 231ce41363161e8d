// Small clips for tests, made by ffmpeg at their first use and kept under the build folder. Several test
// programs may ask at once.
#pragma once

#include <string>

namespace TestClips {

// Path of a clip:
//   "plain.mp4"      10 s, 320x180, 25 fps, key frame each second, one audio track; the colour tells the
//   second "tracks.mkv"     10 s, three audio tracks (eng, ger, fre), three subtitles (eng, ger, fre),
//   chapters at 0, 3
//                    and 6 s named One, Two, Three
//   "film.mkv"       the same over 150 s, with chapters at 0, 40 and 80 s
//   "short.mp4"      1 s
//   "long.mp4"       60 s, key frame every ten seconds
//   "long.ts"        the same without an index
//   "onekey.ts"      60 s, no key frame but the first one
//   "clip.avi"       3 s, MPEG-4
//   "cover.mp3"      3 s with a cover picture
//   "song.flac"      4 s, stereo 44,100 Hz
//   "silent.mp4"     3 s without sound
//   "hevc4k.mkv"     1 s, H.265 at 3840x2160
//   "hdr.mkv"        2 s, H.265 marked as PQ and BT.2020
//   "interlaced.mpg" 2 s, top field first
//   "sbs.mkv"        2 s, 640x180, left half red, right half cyan
//   "red.mp4"        3 s of red, 320x180
//   "truncated.mp4"  the first part of a file whose index stands at its end
//   "broken.avi"     video of a codec that nobody knows, no sound
//   "dark.srt", "dark.ass", "cyrillic.srt" (code page 1251), "album.cue" (three titles of song.flac)
[[nodiscard]] std::string path(const std::string &name);

// An empty folder of the running test.
[[nodiscard]] std::string scratchFolder();

void write(const std::string &path, const std::string &bytes);

} // namespace TestClips
