#include "LocalPictureLoader.h"

#include "PictureDecoder.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace {

// A string with its quotes. Qt writes whole documents only.
QByteArray quoted(const QString &text)
{
    const QByteArray list = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return list.mid(1, list.size() - 2);
}

} // namespace

namespace LocalPictureLoader {

QByteArray requestJson(const QString &path, bool isFolder, const QSize &size)
{
    return "{\"url\":" + quoted(path) + ",\"width\": " + QByteArray::number(size.width())
           + ",\"height\": " + QByteArray::number(size.height())
           + ", \"sourcetype\": " + QByteArray::number(isFolder ? 1 : 0) + '}';
}

QImage load(const QString &path, const PictureSources &sources, const QSize &size)
{
    const QString real = sources.resolvePath ? sources.resolvePath(path) : path;
    const QFileInfo file(real);
    if (real.isEmpty() || !file.exists() || !sources.thumbnail)
        return {};
    return PictureDecoder::fromEngine(sources.thumbnail(requestJson(real, file.isDir(), size)));
}

} // namespace LocalPictureLoader
