#include "ImageFiles.h"

#include "store/IArtworkKeys.h"
#include "store/ILibraryRoots.h"

#include <QDir>
#include <QFileInfo>
#include <QTextCodec>

namespace {

constexpr int headBytes = 16;
constexpr int escapeLength = 3; // "%2F"

struct Signature {
    int offset;
    QByteArray bytes;
    QByteArray contentType;
};

const QVector<Signature> &signatures()
{
    static const QVector<Signature> rows{
        {0, QByteArray("\xff\xd8\xff", 3), "image/jpeg"},
        {0, QByteArray("\x89PNG\r\n\x1a\n", 8), "image/png"},
        {0, QByteArray("GIF87a", 6), "image/gif"},
        {0, QByteArray("GIF89a", 6), "image/gif"},
        {0, QByteArray("BM", 2), "image/bmp"},
        {8, QByteArray("WEBP", 4), "image/webp"},
    };
    return rows;
}

bool isBelow(const QString &path, const QString &folder)
{
    if (folder.isEmpty())
        return false;
    const QString prefix = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    return path.startsWith(prefix) && path.size() > prefix.size();
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

// False for an escape that is none.
bool decodeEscapes(const QByteArray &text, QByteArray &bytes)
{
    bytes.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != '%') {
            bytes.append(text.at(i));
            continue;
        }
        if (i + escapeLength > text.size())
            return false;
        const int high = hexDigit(text.at(i + 1));
        const int low = hexDigit(text.at(i + 2));
        if (high < 0 || low < 0)
            return false;
        bytes.append(char(high * 16 + low));
        i += escapeLength - 1;
    }
    return true;
}

bool isOrdinary(const QString &key)
{
    for (const QChar c : key) {
        if (c.category() == QChar::Other_Control || c == QLatin1Char('\\'))
            return false;
    }
    const QStringList steps = key.split(QLatin1Char('/'));
    return !steps.contains(QStringLiteral("..")) && !steps.contains(QStringLiteral("."));
}

} // namespace

ImageFiles::ImageFiles(const QString &cacheFolder, const ILibraryRoots &roots, const IArtworkKeys &artwork)
    : m_cacheFolder(cacheFolder)
    , m_roots(roots)
    , m_artwork(artwork)
{
}

QString ImageFiles::decoded(const QByteArray &encodedKey)
{
    QByteArray bytes;
    if (!decodeEscapes(encodedKey, bytes))
        return {};
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    const QString key = QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars > 0 || state.remainingChars > 0 || !isOrdinary(key))
        return {};
    return key;
}

QByteArray ImageFiles::typeOf(const QByteArray &head)
{
    for (const Signature &row : signatures()) {
        if (head.mid(row.offset, row.bytes.size()) == row.bytes)
            return row.contentType;
    }
    return {};
}

ImageFiles::Place ImageFiles::placeOf(const QString &key) const
{
    if (!key.contains(QLatin1Char('/')))
        return {m_cacheFolder, m_cacheFolder + QLatin1Char('/') + key};
    if (!QDir::isAbsolutePath(key))
        return {};
    for (const int libraryId : {m_roots.videoLibraryId(), m_roots.musicLibraryId()}) {
        const QVector<RootFolder> folders = m_roots.folders(libraryId);
        for (const RootFolder &folder : folders) {
            if (isBelow(key, folder.path))
                return m_artwork.isNamed(key) ? Place{folder.path, key} : Place();
        }
    }
    return {};
}

ImageFile ImageFiles::open(const QByteArray &encodedKey) const
{
    const QString key = decoded(encodedKey);
    if (key.isEmpty())
        return {};
    const Place place = placeOf(key);
    if (place.path.isEmpty())
        return {};
    ImageFile image;
    image.file = OpenedFile::open(place.path);
    if (!image.file.isOpen() || image.file.size() > LargestImage)
        return {};
    if (!isBelow(image.file.realPath(), QFileInfo(place.folder).canonicalFilePath()))
        return {};
    image.contentType = typeOf(image.file.head(headBytes));
    if (image.contentType.isEmpty())
        return {};
    return image;
}
