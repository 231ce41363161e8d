// Finds the file of a picture's key and opens it, if it is a picture that may be shown.
//
// A key is the bare name of a file in the picture cache, or the absolute path of a file below a library
// folder that some record names. What is no picture, too large, or reached through a link that leads
// elsewhere counts as not there. Any thread.
#pragma once

#include "OpenedFile.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

class IArtworkKeys;
class ILibraryRoots;

struct ImageFile {
    OpenedFile file; // not open: there is no such picture
    QByteArray contentType;
};

class ImageFiles final {
public:
    static constexpr qint64 LargestImage = 32 * 1024 * 1024; // bytes

    ImageFiles(const QString &cacheFolder, const ILibraryRoots &roots, const IArtworkKeys &artwork);

    [[nodiscard]] ImageFile open(const QByteArray &encodedKey) const;

    // The key that a percent-encoded text stands for, decoded once; empty where it is none: bad escapes, bad
    // UTF-8, control characters, backslashes and steps upwards make it none.
    [[nodiscard]] static QString decoded(const QByteArray &encodedKey);
    // The type by the first bytes of a picture; empty for anything else.
    [[nodiscard]] static QByteArray typeOf(const QByteArray &head);

private:
    struct Place {
        QString folder;
        QString path;
    };
    [[nodiscard]] Place placeOf(const QString &key) const;

    QString m_cacheFolder;
    const ILibraryRoots &m_roots;
    const IArtworkKeys &m_artwork;
};
