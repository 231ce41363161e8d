#include "DiscLabel.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 kDescriptorOffset = 16 * 2048;
constexpr int kDescriptorHead = 72;
constexpr char kIdentifier[] = "\x01"
                               "CD001";
constexpr int kNameOffset = 40;
constexpr int kNameLength = 32;

QString nameInImage(const QString &path)
{
    QFile image(path);
    if (!image.open(QIODevice::ReadOnly) || !image.seek(kDescriptorOffset))
        return {};
    const QByteArray head = image.read(kDescriptorHead);
    if (head.size() < kDescriptorHead || !head.startsWith(kIdentifier))
        return {};
    return QString::fromLatin1(head.mid(kNameOffset, kNameLength)).remove(QChar::Null).trimmed();
}

} // namespace

QString discLabel(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return {};
    if (info.isDir())
        return QDir(info.absoluteFilePath()).dirName();
    const QString name = nameInImage(path);
    return name.isEmpty() ? info.completeBaseName() : name;
}
