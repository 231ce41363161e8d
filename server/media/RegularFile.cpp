#include "RegularFile.h"

QByteArray RegularFile::contents(const QString &path, qint64 limit)
{
    RegularFile file(path);
    if (!file.isOpen() || file.size() > limit)
        return {};
    QByteArray bytes(int(file.size()), Qt::Uninitialized);
    const qint64 count = file.readAt(0, bytes.data(), bytes.size());
    bytes.truncate(int(qMax<qint64>(0, count)));
    return bytes;
}
