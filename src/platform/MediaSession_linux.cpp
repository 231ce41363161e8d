#include "MediaSession.h"

#include "MprisAdaptors_linux.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QMetaClassInfo>

namespace {

const QString ObjectPath = QStringLiteral("/org/mpris/MediaPlayer2");
const QString ServicePrefix = QStringLiteral("org.mpris.MediaPlayer2.");

} // namespace

class MediaSession::Backend {
public:
    Backend(MediaSession *session, const QString &identity, const QString &desktopEntry)
        : m_root(new MprisRootAdaptor(&m_object, session, identity, desktopEntry))
        , m_player(new MprisPlayerAdaptor(&m_object, session))
    {
    }

    ~Backend()
    {
        m_bus.unregisterObject(ObjectPath);
        if (!m_service.isEmpty())
            m_bus.unregisterService(m_service);
    }

    bool open(const QString &desktopEntry)
    {
        if (!m_bus.isConnected() || !m_bus.registerObject(ObjectPath, &m_object))
            return false;
        // A second player of the same name takes the form that the interface gives for it.
        const QString plain = ServicePrefix + desktopEntry;
        const QString own = plain + QStringLiteral(".instance%1").arg(QCoreApplication::applicationPid());
        for (const QString &name : {plain, own}) {
            if (m_bus.registerService(name)) {
                m_service = name;
                return true;
            }
        }
        return false;
    }

    void announce(const char *property)
    {
        const bool isRoot = m_root->metaObject()->indexOfProperty(property) >= 0;
        const QObject *adaptor = isRoot ? static_cast<QObject *>(m_root) : m_player;
        const QMetaObject *meta = adaptor->metaObject();
        const QString interfaceName =
            QLatin1String(meta->classInfo(meta->indexOfClassInfo("D-Bus Interface")).value());
        QDBusMessage message =
            QDBusMessage::createSignal(ObjectPath, QStringLiteral("org.freedesktop.DBus.Properties"),
                                       QStringLiteral("PropertiesChanged"));
        message << interfaceName << QVariantMap{{QLatin1String(property), adaptor->property(property)}}
                << QStringList();
        m_bus.send(message);
    }

    void announceSeek(qint64 positionMs) { emit m_player->Seeked(positionMs * 1000); }

private:
    QDBusConnection m_bus{QDBusConnection::sessionBus()};
    QObject m_object;
    MprisRootAdaptor *m_root;     // child of m_object
    MprisPlayerAdaptor *m_player; // child of m_object
    QString m_service;
};

MediaSession::MediaSession(QObject *parent)
    : QObject(parent)
{
}

MediaSession::~MediaSession() = default;

bool MediaSession::open(const QString &identity, const QString &desktopEntry)
{
    m_backend = std::make_unique<Backend>(this, identity, desktopEntry);
    if (m_backend->open(desktopEntry))
        return true;
    m_backend.reset();
    qInfo("[Process] no session bus: media keys of the desktop are not heard");
    return false;
}

void MediaSession::announceSeek(qint64 positionMs)
{
    m_positionMs = positionMs;
    if (m_backend)
        m_backend->announceSeek(positionMs);
}

void MediaSession::changed(const char *property)
{
    if (m_backend)
        m_backend->announce(property);
}
