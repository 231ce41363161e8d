// What a sound file says about itself: its tags, its length, the cover in it.
//
// read() is safe on every thread, never throws, and comes back soon after the deadline whatever the file
// holds.
#pragma once

#include "MediaDeadline.h"

#include <QByteArray>
#include <QString>

class QTextCodec;

struct SoundTags {
    // False when the file could not be read as sound; title and number then come from its name.
    bool wasRead{false};
    QString title;
    QString artist;      // several are joined with "; "
    QString albumArtist; // as the artist
    QString album;
    QString genre; // several are joined with ", "
    int track{0};
    int disc{0};
    int year{0};
    int durationMs{0};
    QByteArray cover; // bytes of a picture file, the front cover where several are there

    [[nodiscard]] static SoundTags read(const QString &path, const MediaDeadline &deadline);
    // With the charset that old tags are read in where they are not UTF-8; null for none but Latin-1.
    [[nodiscard]] static SoundTags read(const QString &path, const MediaDeadline &deadline,
                                        QTextCodec *local);
};
