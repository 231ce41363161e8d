#include "TransportIcons.h"

#include "StyleLoader.h"

#include "core/CommonInfoManager.h"

#include <QImage>
#include <QPainter>
#include <QPixmapCache>

namespace TransportIcons {

namespace {

constexpr const char *kForms[] = {".png", "@1.5x.png", "@2x.png"};

QImage fittingForm(const QString &name, int sizePx)
{
    QImage image;
    for (const char *form : kForms) {
        QImage larger(QLatin1String(StyleLoader::kPicturePrefix) + name + QLatin1String(form));
        if (!larger.isNull())
            image = larger;
        if (image.width() >= sizePx)
            break;
    }
    image.setDevicePixelRatio(1.0);
    return image;
}

struct KindRow {
    FileKind kind;
    const char *name;
};
constexpr KindRow kKinds[] = {
    {FileKind::Video, "media_film"},
    {FileKind::Audio, "media_music"},
    {FileKind::DiscImage, "media_disc"},
};

} // namespace

QString nameOfFile(const QString &path)
{
    const FileKind kind = CommonInfoManager::kindOf(path);
    for (const KindRow &row : kKinds) {
        if (row.kind == kind)
            return QLatin1String(row.name);
    }
    return QStringLiteral("media_file");
}

QPixmap pixmap(const QString &name, int sizePx, const QColor &color)
{
    const QString key = QStringLiteral("transport/%1/%2/%3").arg(name).arg(sizePx).arg(color.rgba(), 0, 16);
    QPixmap result;
    if (QPixmapCache::find(key, &result))
        return result;
    QImage image = fittingForm(name, sizePx);
    if (image.isNull())
        return {};
    image = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    if (image.width() != sizePx)
        image = image.scaled(sizePx, sizePx, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    result = QPixmap::fromImage(image);
    QPixmapCache::insert(key, result);
    return result;
}

} // namespace TransportIcons
