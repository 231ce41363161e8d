#include "PosterLoader.h"

#include "PictureDecoder.h"

#include <QFile>
#include <QUrl>

namespace {

constexpr char kPortVariable[] = "QUORIN_LIBRARY_PORT";
constexpr quint16 kPort = 32080;
// Where the front begins, as a part of the width.
constexpr double kBackOfSleeve = 0.4725;

quint16 port()
{
    bool isNumber = false;
    const quint16 chosen = qEnvironmentVariable(kPortVariable).toUShort(&isNumber);
    return isNumber && chosen != 0 ? chosen : kPort;
}

} // namespace

namespace PosterLoader {

QString address(const QString &key)
{
    return QStringLiteral("http://127.0.0.1:%1/image/").arg(port())
           + QString::fromLatin1(QUrl::toPercentEncoding(key));
}

QByteArray withoutFinalZero(QByteArray bytes)
{
    if (bytes.endsWith('\0'))
        bytes.chop(1);
    return bytes;
}

QImage frontOfSleeve(const QImage &sleeve)
{
    const int back = int(sleeve.width() * kBackOfSleeve);
    return sleeve.copy(QRect(back, 0, sleeve.width() - back, sleeve.height()));
}

QImage load(const QString &key, const PictureSources &sources)
{
    if (key.isEmpty())
        return {};
    if (QFile::exists(key))
        return PictureDecoder::fromFile(key);
    if (!sources.fetch)
        return {};
    const QByteArray bytes = withoutFinalZero(sources.fetch(address(key), kFetchTimeoutMs));
    const QImage image = PictureDecoder::fromBytes(bytes);
    if (!image.isNull() && key.contains(QLatin1String(kSleeveHost)))
        return frontOfSleeve(image);
    return image;
}

} // namespace PosterLoader
