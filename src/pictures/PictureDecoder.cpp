#include "PictureDecoder.h"

#include <QBuffer>
#include <QDebug>
#include <QImageReader>

#include <algorithm>

namespace {

// What the JPEG reader can leave out on each side while it decodes.
constexpr qint64 kJpegReduction = 8;
constexpr int kBytesPerPixel = 4;

QSize bounded(const QSize &size)
{
    const int longest = std::max(size.width(), size.height());
    if (longest <= PictureDecoder::kLongestSide)
        return size;
    const QSize box(PictureDecoder::kLongestSide, PictureDecoder::kLongestSide);
    return size.scaled(box, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage read(QImageReader &reader)
{
    if (!reader.canRead())
        return {};
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty()) // it doesn't tell what it would cost
        return {};
    const bool isJpeg = reader.format() == "jpeg" || reader.format() == "jpg";
    const qint64 most = PictureDecoder::kMostPixels * (isJpeg ? kJpegReduction * kJpegReduction : 1);
    if (qint64(size.width()) * size.height() > most) {
        qInfo() << "[Picture] too large to be read:" << reader.fileName() << size;
        return {};
    }
    const QSize wanted = bounded(size);
    if (wanted != size)
        reader.setScaledSize(wanted);
    const QImage image = reader.read();
    if (image.isNull())
        return {};
    // The form in which it is drawn: no thread that paints has to convert it.
    return image.convertToFormat(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                         : QImage::Format_RGB32);
}

} // namespace

namespace PictureDecoder {

QImage fromFile(const QString &path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    return read(reader);
}

QImage fromBytes(const QByteArray &bytes, const char *format)
{
    if (bytes.isEmpty())
        return {};
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, format ? QByteArray(format) : QByteArray());
    return read(reader);
}

QImage fromEngine(const PlayerPicture &picture)
{
    if (picture.data.isEmpty())
        return {};
    if (picture.format == libvp::VD_Picture_Jpeg)
        return fromBytes(picture.data, "JPEG");
    if (picture.format != libvp::VD_Picture_Rgba || picture.width <= 0 || picture.height <= 0)
        return {};
    const qint64 pixels = qint64(picture.width) * picture.height;
    if (pixels > kMostPixels || pixels * kBytesPerPixel > picture.data.size())
        return {};
    const QImage rows(reinterpret_cast<const uchar *>(picture.data.constData()), picture.width,
                      picture.height, picture.width * kBytesPerPixel, QImage::Format_RGBX8888);
    return rows.convertToFormat(QImage::Format_RGB32);
}

QRect middlePart(const QSize &picture, const QSize &target)
{
    const QSize part = target.scaled(picture, Qt::KeepAspectRatio).expandedTo({1, 1});
    return {{(picture.width() - part.width()) / 2, (picture.height() - part.height()) / 2}, part};
}

QImage scaledAndCropped(const QImage &image, const QSize &size)
{
    if (image.isNull() || size.isEmpty())
        return {};
    // Cut first: a picture of one pixel's width would grow beyond all bounds before its height is cut.
    return image.copy(middlePart(image.size(), size))
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace PictureDecoder
