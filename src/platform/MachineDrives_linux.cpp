#include "MachineDrives.h"

#include "OpticalDevices_linux.h"

#include <QFileInfo>

#include <libudev.h>

#include <memory>

namespace {

constexpr char kFirstLetter = 'D';
constexpr char kLastLetter = 'Z';

struct UdevDeleter {
    void operator()(udev *context) const { udev_unref(context); }
    void operator()(udev_device *device) const { udev_device_unref(device); }
};

} // namespace

QVector<Drive> MachineDrives::list()
{
    QVector<Drive> drives;
    char letter = kFirstLetter;
    const QStringList devices = opticalDevices(QStringLiteral("/sys/block"));
    for (const QString &device : devices) {
        if (letter > kLastLetter)
            break;
        drives << Drive{QLatin1Char(letter++), Drive::Optical, QStringLiteral("/dev/") + device, false};
    }
    return drives;
}

QString MachineDrives::volumeLabel(const Drive &drive)
{
    const std::unique_ptr<udev, UdevDeleter> context(udev_new());
    if (!context)
        return {};
    const QByteArray name = QFileInfo(drive.target).fileName().toLocal8Bit();
    const std::unique_ptr<udev_device, UdevDeleter> device(
        udev_device_new_from_subsystem_sysname(context.get(), "block", name.constData()));
    if (!device)
        return {};
    // The label with its blanks kept; the plain property has them replaced.
    const char *label = udev_device_get_property_value(device.get(), "ID_FS_LABEL_ENC");
    QByteArray text(label ? label : "");
    for (int at = text.indexOf("\\x"); at >= 0 && at + 4 <= text.size(); at = text.indexOf("\\x", at + 1))
        text.replace(at, 4, QByteArray::fromHex(text.mid(at + 2, 2)));
    return QString::fromUtf8(text).trimmed();
}
