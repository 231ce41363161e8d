// Sound files whose tags a test chooses.
#pragma once

#include <QByteArray>
#include <QString>

struct SoundFile {
    QString title;
    QString artist;
    QString album;
    QString albumArtist;
    QString genre;
    int year{0};
    int track{0};
    QByteArray cover; // PNG, embedded where there is one; into MP3 only

    // Writes a sample clip of the format that the suffix tells, with these tags and no others.
    void write(const QString &path) const;
};
