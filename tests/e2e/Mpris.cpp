#include "Mpris.h"

#include "Eventually.h"

#include "core/ApplicationInfoManager.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QUrl>

namespace {

constexpr char kPath[] = "/org/mpris/MediaPlayer2";
constexpr char kRoot[] = "org.mpris.MediaPlayer2";
constexpr char kPlayer[] = "org.mpris.MediaPlayer2.Player";
constexpr double kUsPerSecond = 1e6;
constexpr int kCallMs = 5000;

QString service()
{
    return QLatin1String(kRoot) + QLatin1Char('.') + ApplicationInfoManager::desktopName();
}

QDBusMessage call(const char *interface, const char *method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service(), QLatin1String(kPath),
                                                          QLatin1String(interface), QLatin1String(method));
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message, QDBus::Block, kCallMs);
}

QVariant read(const char *interface, const QString &name)
{
    const QDBusMessage answer =
        call("org.freedesktop.DBus.Properties", "Get", {QLatin1String(interface), name});
    return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QVariantMap metadata()
{
    return qdbus_cast<QVariantMap>(read(kPlayer, QStringLiteral("Metadata")));
}

} // namespace

bool Mpris::waitForSession(int timeoutMs) const
{
    return eventually(
        [] { return QDBusConnection::sessionBus().interface()->isServiceRegistered(service()).value(); },
        timeoutMs);
}

QVariant Mpris::property(const QString &name) const
{
    return read(kPlayer, name);
}

double Mpris::seconds() const
{
    return property(QStringLiteral("Position")).toDouble() / kUsPerSecond;
}

double Mpris::lengthSeconds() const
{
    return metadata().value(QStringLiteral("mpris:length")).toDouble() / kUsPerSecond;
}

bool Mpris::isFullScreen() const
{
    return read(kRoot, QStringLiteral("Fullscreen")).toBool();
}

void Mpris::openUri(const QString &path) const
{
    (void)call(kPlayer, "OpenUri", {QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)});
}

void Mpris::goTo(double seconds) const
{
    (void)call(kPlayer, "SetPosition",
               {metadata().value(QStringLiteral("mpris:trackid")), qlonglong(seconds * kUsPerSecond)});
}
