#include "ScreenSaverInhibitor_linux.h"

#include "core/ApplicationInfoManager.h"
#include "core/ThreadWorker.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDebug>
#include <QFile>
#include <QUuid>

#include <atomic>
#include <optional>

namespace {

constexpr char kService[] = "org.freedesktop.ScreenSaver";
constexpr char kPath[] = "/org/freedesktop/ScreenSaver";
constexpr int kCallTimeoutMs = 3000;

} // namespace

class ScreenSaverInhibitor::Link final {
public:
    explicit Link(const QString &address)
        : m_address(address)
        , m_name(QStringLiteral("screensaver-") + QUuid::createUuid().toString(QUuid::WithoutBraces))
    {
    }

    // On the worker's thread: brings the desktop's state in line with the wish.
    void carryOut(bool inhibit)
    {
        if (inhibit == m_cookie.has_value())
            return;
        if (inhibit)
            m_cookie = askToInhibit();
        else
            giveBack();
        m_held = m_cookie.has_value();
    }

    [[nodiscard]] bool held() const { return m_held; }

    void disconnect()
    {
        if (m_connected)
            QDBusConnection::disconnectFromBus(m_name);
        m_connected = false;
    }

private:
    QDBusMessage send(const char *method, const QVariantList &arguments)
    {
        QDBusConnection bus =
            m_connected ? QDBusConnection(m_name) : QDBusConnection::connectToBus(m_address, m_name);
        m_connected = bus.isConnected();
        QDBusMessage message = QDBusMessage::createMethodCall(kService, kPath, kService, method);
        message.setArguments(arguments);
        return bus.call(message, QDBus::Block, kCallTimeoutMs);
    }

    std::optional<quint32> askToInhibit()
    {
        if (m_address.isEmpty()) {
            qInfo() << "[ScreenSaver] no session bus, the screen saver stays as it is";
            return std::nullopt;
        }
        const QDBusReply<quint32> reply =
            send("Inhibit", {ApplicationInfoManager::productName(), QStringLiteral("Playing video")});
        if (!reply.isValid()) {
            qInfo() << "[ScreenSaver] no service answers:" << reply.error().message();
            return std::nullopt;
        }
        return reply.value();
    }

    void giveBack()
    {
        const QDBusReply<void> reply = send("UnInhibit", {QVariant::fromValue(*m_cookie)});
        if (!reply.isValid())
            qInfo() << "[ScreenSaver] could not be given back:" << reply.error().message();
        m_cookie.reset();
    }

    QString m_address;
    QString m_name;
    bool m_connected{false};
    std::optional<quint32> m_cookie;
    std::atomic<bool> m_held{false};
};

ScreenSaverInhibitor::ScreenSaverInhibitor(const QString &busAddress)
    : m_link(std::make_shared<Link>(busAddress))
{
}

ScreenSaverInhibitor::~ScreenSaverInhibitor()
{
    if (m_worker && m_worker->stop())
        m_link->disconnect();
}

void ScreenSaverInhibitor::setInhibited(bool inhibited)
{
    m_wanted = inhibited;
    apply();
}

void ScreenSaverInhibitor::apply()
{
    if (!QCoreApplication::instance() || m_wanted == m_sent)
        return;
    m_sent = m_wanted;
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>(1);
    m_worker->addTask([link = m_link, inhibit = m_wanted] { link->carryOut(inhibit); },
                      [this] {
                          if (m_applied)
                              m_applied(m_link->held());
                      });
}

QString ScreenSaverInhibitor::sessionBusAddress()
{
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
    if (!address.isEmpty())
        return address;
    const QString socket = qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus");
    return QFile::exists(socket) ? QStringLiteral("unix:path=") + socket : QString();
}
