#include "UpdateManager.h"

#include "core/ApplicationInfoManager.h"

#include <QDebug>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>

namespace {

constexpr char kUpdaterServer[] = "Quorin Player Update Server";
constexpr int kConnectMs = 200;

bool startDetached(const QString &program, const QStringList &arguments)
{
    return QFile::exists(program) && QProcess::startDetached(program, arguments);
}

bool updaterServes()
{
    QLocalSocket socket;
    socket.connectToServer(QLatin1String(kUpdaterServer));
    return socket.waitForConnected(kConnectMs);
}

} // namespace

UpdateManager *UpdateManager::instance()
{
    static UpdateManager manager(ApplicationInfoManager::instance()->applicationFolder() + QLatin1Char('/')
                                     + ApplicationInfoManager::instance()->updaterName(),
                                 ApplicationInfoManager::instance()->updateConfigurationFile(), startDetached,
                                 updaterServes);
    return &manager;
}

UpdateManager::UpdateManager(QString updaterPath, QString configurationPath, Starter starter,
                             RunningTest isRunning)
    : m_updaterPath(std::move(updaterPath))
    , m_configurationPath(std::move(configurationPath))
    , m_starter(std::move(starter))
    , m_isRunning(std::move(isRunning))
{
}

bool UpdateManager::check(Flag flag)
{
    qInfo().noquote() << QStringLiteral("[Web service] update flag: %1")
                             .arg(flag == Flag::Auto ? QLatin1String("Auto") : QLatin1String("Manual"));
    if (flag == Flag::Auto && m_isRunning())
        return true;
    const bool started =
        m_starter(m_updaterPath, {QLatin1Char('"') + m_configurationPath + QLatin1Char('"')});
    qInfo().noquote() << QStringLiteral("[Web service] start update: %1")
                             .arg(started ? QLatin1String("Success") : QLatin1String("Fail"));
    return started;
}
