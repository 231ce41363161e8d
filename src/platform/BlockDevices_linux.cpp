#include "BlockDevices_linux.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace BlockDevices {

Facts factsOf(const QString &device, const QString &sys)
{
    const QFileInfo link(QStringLiteral("%1/dev/block/%2").arg(sys, device));
    // The link leads to where the device hangs, so that its path names every bus on the way.
    QString place = link.canonicalFilePath();
    if (device.isEmpty() || place.isEmpty())
        return {};
    if (QFile::exists(place + QLatin1String("/partition")))
        place = QFileInfo(place).path();
    QFile removable(place + QLatin1String("/removable"));
    if (!removable.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression bus(QStringLiteral("/(usb|fw)[0-9]+/"));
    return {true, removable.readAll().trimmed() == "1", bus.match(place).hasMatch()};
}

} // namespace BlockDevices
