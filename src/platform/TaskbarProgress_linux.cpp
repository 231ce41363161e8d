#include "TaskbarDesktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

// The launchers' signal, which docks and task managers of several desktops follow. It has no word for a
// pause.
struct TaskbarProgress::Desktop::Way {
    QString application;
    QDBusConnection bus{QDBusConnection::sessionBus()};
};

TaskbarProgress::Desktop::Desktop(const QString &desktopName, WId window)
    : m_way(std::make_unique<Way>())
{
    Q_UNUSED(window)
    m_way->application = QStringLiteral("application://%1.desktop").arg(desktopName);
}

TaskbarProgress::Desktop::~Desktop() = default;

void TaskbarProgress::Desktop::tell(int step, bool isPaused)
{
    Q_UNUSED(isPaused)
    QDBusMessage update = QDBusMessage::createSignal(QStringLiteral("/player"),
                                                     QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                                     QStringLiteral("Update"));
    const QVariantMap facts{{QStringLiteral("progress"), double(qMax(0, step)) / Steps},
                            {QStringLiteral("progress-visible"), step >= 0}};
    update << m_way->application << facts;
    // Nothing is waited for; without a bus nobody hears it.
    (void)m_way->bus.send(update);
}
