// Short clips with tags, made by ffmpeg once a test program and copied from there.
//
// One thread. A program that cannot be run fails the test that asked.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace SampleClips {

// "mp3", "flac", "m4a", "ogg", "opus", "wav", "wma", "aiff", "wv": 0.4 s of a tone; title "Tone", artist
// "Player", album "Samples", album artist "Several", genre "Rock", track 3 of 12, disc 2, date 2004-05-01, as
// far as the format tells it.
[[nodiscard]] QStringList soundFormats();
// "mp4", "mkv", "avi", "ts", "mpg": 1 s of 64 x 48, title "Bars".
[[nodiscard]] QStringList videoFormats();

[[nodiscard]] QByteArray bytes(const QString &format);
// Writes the clip; makes the folders on the way.
void copy(const QString &format, const QString &path);
void write(const QString &path, const QByteArray &content);

// A picture of one colour as a PNG file.
[[nodiscard]] QByteArray png(unsigned int colour);

// Bytes changed, cut out, doubled or cut off, always the same for a seed.
[[nodiscard]] QByteArray damaged(const QByteArray &bytes, unsigned int seed);

} // namespace SampleClips
