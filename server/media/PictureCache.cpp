#include "PictureCache.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace {

struct PictureKind {
    QByteArray begin;
    const char *suffix;
};

QString suffixOf(const QByteArray &picture)
{
    static const PictureKind kinds[] = {
        {QByteArrayLiteral("\xFF\xD8\xFF"), ".jpg"},
        {QByteArrayLiteral("\x89PNG\r\n\x1A\n"), ".png"},
        {QByteArrayLiteral("GIF8"), ".gif"},
        {QByteArrayLiteral("BM"), ".bmp"},
    };
    for (const PictureKind &kind : kinds) {
        if (picture.startsWith(kind.begin))
            return QLatin1String(kind.suffix);
    }
    const bool isWebP = picture.startsWith("RIFF") && picture.mid(8, 4) == "WEBP";
    return isWebP ? QStringLiteral(".webp") : QString();
}

} // namespace

QString PictureCache::store(const QByteArray &picture)
{
    if (picture.size() > LargestPicture)
        return {};
    const QString suffix = suffixOf(picture);
    if (suffix.isEmpty())
        return {};
    const QString name =
        QString::fromLatin1(QCryptographicHash::hash(picture, QCryptographicHash::Sha1).toHex()) + suffix;
    const QString path = m_folder + QLatin1Char('/') + name;
    std::lock_guard lock(m_mutex);
    // The size tells a file that a power cut left short.
    const QFileInfo known(path);
    if (known.isFile() && known.size() == picture.size())
        return name;
    return write(path, picture) ? name : QString();
}

bool PictureCache::write(const QString &path, const QByteArray &picture)
{
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    const bool written = file.open() && file.write(picture) == picture.size() && file.flush();
    // Replaces what stands there, which QFile::rename() would not.
    const bool stored = written && (QFile::remove(path) || !QFile::exists(path)) && file.rename(path);
    if (stored)
        file.setAutoRemove(false);
    else if (!m_failed)
        qWarning().noquote() << "[pictures]" << path << "cannot be written:" << file.errorString();
    m_failed = !stored;
    return stored;
}
