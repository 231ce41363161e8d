#include "OpticalDevices_linux.h"

#include <QDir>
#include <QMap>

QStringList opticalDevices(const QString &sysBlock)
{
    const QString prefix = QStringLiteral("sr");
    QMap<int, QString> byNumber;
    // The entries are links to folders.
    const QStringList names =
        QDir(sysBlock).entryList({prefix + QLatin1Char('*')}, QDir::Dirs | QDir::System);
    for (const QString &name : names) {
        bool ok = false;
        const int number = name.mid(prefix.size()).toInt(&ok);
        if (ok)
            byNumber.insert(number, name);
    }
    return byNumber.values();
}
