#include "FileAssociation.h"

#include "core/ApplicationInfoManager.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QSettings>

namespace {

constexpr char kHandler[] = "QuorinSixMovieOnArrival";
constexpr char kProgId[] = "QuorinSix.AutoPlay";
constexpr char kMachineClasses[] = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes\\";
constexpr char kAutoplayRoot[] =
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\AutoplayHandlers\\";

// One value of the registry; an empty name is the key's default value.
struct Row {
    QString key;
    QString name;
    QString data;
};

QList<Row> autoplayRows()
{
    const QString program = QDir::toNativeSeparators(QCoreApplication::applicationFilePath());
    const QString handler = QLatin1String(kHandler);
    const QString root = QLatin1String(kAutoplayRoot);
    const QString handlerKey = root + QStringLiteral("Handlers\\") + handler;
    const QString arrival[] = {QStringLiteral("PlayBluRayOnArrival"), QStringLiteral("PlayDVDMovieOnArrival"),
                               QStringLiteral("PlayVideoFilesOnArrival")};
    QList<Row> rows{
        {QLatin1String(kMachineClasses) + QLatin1String(kProgId) + QStringLiteral("\\shell\\open\\command"),
         {},
         QStringLiteral("\"%1\" \"%2\"").arg(program, QStringLiteral("%1"))},
        {handlerKey, QStringLiteral("Action"), QStringLiteral("Play Movie")},
        {handlerKey, QStringLiteral("DefaultIcon"), QStringLiteral("\"%1\",0").arg(program)},
        {handlerKey, QStringLiteral("InvokeProgID"), QLatin1String(kProgId)},
        {handlerKey, QStringLiteral("InvokeVerb"), QStringLiteral("Open")},
        {handlerKey, QStringLiteral("Provider"), ApplicationInfoManager::instance()->productName()},
    };
    for (const QString &event : arrival)
        rows.append({root + QStringLiteral("EventHandlers\\") + event, handler, QString()});
    for (const char *group : {"EventHandlersDefaultSelection\\", "UserChosenExecuteHandlers\\"})
        rows.append({root + QLatin1String(group) + arrival[2], {}, handler});
    return rows;
}

QString valueName(const Row &row)
{
    return row.name.isEmpty() ? QStringLiteral("Default") : row.name;
}

} // namespace

bool FileAssociation::RegisterAutoplay(bool enable)
{
    bool done = true;
    const QList<Row> rows = autoplayRows();
    for (const Row &row : rows) {
        QSettings key(row.key, QSettings::NativeFormat);
        if (enable)
            key.setValue(valueName(row), row.data);
        else
            key.remove(valueName(row));
        key.sync();
        done = done && key.status() == QSettings::NoError;
    }
    if (!enable) {
        QSettings(QLatin1String(kMachineClasses) + QLatin1String(kProgId), QSettings::NativeFormat).clear();
        QSettings(QLatin1String(kAutoplayRoot) + QStringLiteral("Handlers\\") + QLatin1String(kHandler),
                  QSettings::NativeFormat)
            .clear();
    }
    qInfo() << "[File association] autoplay" << (enable ? "on" : "off") << (done ? "success" : "fail");
    return done;
}

bool FileAssociation::UnregisterApplication()
{
    const QString name = ApplicationInfoManager::instance()->productName();
    QSettings clients(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Clients\\Media"),
                      QSettings::NativeFormat);
    clients.remove(name);
    QSettings registered(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\RegisteredApplications"),
                         QSettings::NativeFormat);
    registered.remove(name);
    clients.sync();
    registered.sync();
    const bool done = clients.status() == QSettings::NoError && registered.status() == QSettings::NoError;
    qInfo() << "[File association] remove application" << (done ? "success" : "fail");
    return done;
}
