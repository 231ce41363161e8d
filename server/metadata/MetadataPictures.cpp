#include "MetadataPictures.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace {

struct ImageKind {
    const char *suffix;
    int offset;
    QByteArray mark;
};

const QVector<ImageKind> &imageKinds()
{
    static const QVector<ImageKind> rows{{".jpg", 0, QByteArrayLiteral("\xFF\xD8\xFF")},
                                         {".png", 0, QByteArrayLiteral("\x89PNG\r\n\x1A\n")},
                                         {".webp", 8, QByteArrayLiteral("WEBP")},
                                         {".gif", 0, QByteArrayLiteral("GIF8")},
                                         {".bmp", 0, QByteArrayLiteral("BM")}};
    return rows;
}

bool isLocal(const QString &key)
{
    return QDir::isAbsolutePath(key);
}

} // namespace

MetadataPictures::MetadataPictures(const QString &imageFolder, IMetadataProvider &provider)
    : m_folder(imageFolder)
    , m_provider(provider)
{
}

QString MetadataPictures::suffixOf(const QByteArray &content)
{
    for (const ImageKind &row : imageKinds()) {
        if (content.mid(row.offset, row.mark.size()) == row.mark)
            return QLatin1String(row.suffix);
    }
    return {};
}

QString MetadataPictures::fetch(const QString &providerName, PictureKind kind, const MetadataCall &call) const
{
    if (providerName.isEmpty())
        return {};
    const QByteArray question = m_provider.identityKey().toUtf8() + '/'
                                + QByteArray::number(static_cast<int>(kind)) + providerName.toUtf8();
    const QString stem =
        QString::fromLatin1(QCryptographicHash::hash(question, QCryptographicHash::Sha256).toHex());
    for (const ImageKind &row : imageKinds()) {
        const QString name = stem + QLatin1String(row.suffix);
        if (QFile::exists(m_folder + QLatin1Char('/') + name))
            return name;
    }
    const Answer<QByteArray> picture = m_provider.picture(providerName, kind, call);
    if (!picture.isFound())
        return {};
    const QString suffix = suffixOf(picture.value);
    if (suffix.isEmpty()) {
        qWarning().noquote() << "[metadata] no image:" << providerName;
        return {};
    }
    QSaveFile file(m_folder + QLatin1Char('/') + stem + suffix);
    if (!file.open(QIODevice::WriteOnly) || file.write(picture.value) != picture.value.size()
        || !file.commit()) {
        qWarning().noquote() << "[metadata] a picture can't be kept:" << file.errorString();
        return {};
    }
    return stem + suffix;
}

void MetadataPictures::localise(Description &description, PictureKind posterKind, const Description &known,
                                const MetadataCall &call) const
{
    description.poster = isLocal(known.poster) ? QString() : fetch(description.poster, posterKind, call);
    description.backdrop =
        isLocal(known.backdrop) ? QString() : fetch(description.backdrop, PictureKind::Backdrop, call);
}
