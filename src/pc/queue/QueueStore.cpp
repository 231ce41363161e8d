#include "QueueStore.h"

#include "QueuePath.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "core/ThreadWorker.h"

#include <QDebug>

QueueStore::QueueStore(SettingsManager &settings, QObject *parent)
    : QObject(parent)
    , m_settings(settings)
{
    m_saveSoon.setSingleShot(true);
    m_saveSoon.setInterval(SaveSoonMs);
    connect(&m_saveSoon, &QTimer::timeout, this, &QueueStore::saveOnWorker);
}

QueueStore::~QueueStore() = default;

QStringList QueueStore::load()
{
    const QVariant stored = m_settings.value(QLatin1String(SettingsKeys::PC_Playlist));
    if (stored.isValid() && stored.type() != QVariant::Map)
        qInfo() << "[Playlist] what is stored is no queue:" << stored.typeName();
    const QVariantMap map = stored.type() == QVariant::Map ? stored.toMap() : QVariantMap();
    int leftOut = 0;
    QStringList paths;
    paths.reserve(map.size());
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
        const QString &path = entry.key();
        const QString key = QueuePath::key(path);
        if (!QueuePath::isUsable(path) || m_keys.contains(key) || m_map.size() >= Most) {
            ++leftOut;
            continue;
        }
        m_keys.insert(key);
        m_map.insert(path, entry.value());
        paths << path;
    }
    qInfo() << "[Playlist] loaded:" << paths.size();
    if (leftOut > 0)
        qInfo() << "[Playlist] left out as they are no sources:" << leftOut;
    return paths;
}

QStringList QueueStore::take(const QStringList &paths)
{
    QStringList taken;
    taken.reserve(paths.size());
    int refused = 0;
    for (const QString &asked : paths) {
        if (!QueuePath::isUsable(asked) || m_map.size() >= Most) {
            ++refused;
            continue;
        }
        const QString path = QueuePath::kept(asked);
        const QString key = QueuePath::key(path);
        if (m_keys.contains(key))
            continue;
        m_keys.insert(key);
        // Only the keys are read again. Whole folders come in the order of their names, at the end.
        if (m_map.isEmpty() || m_map.lastKey() < path)
            m_map.insert(m_map.cend(), path, true);
        else
            m_map.insert(path, true);
        taken << path;
    }
    if (refused > 0)
        qInfo() << "[Playlist] not taken:" << refused;
    if (!taken.isEmpty())
        changed();
    return taken;
}

void QueueStore::remove(const QStringList &paths)
{
    int removed = 0;
    for (const QString &path : paths) {
        m_keys.remove(QueuePath::key(path));
        removed += m_map.remove(path);
    }
    if (removed > 0)
        changed();
}

void QueueStore::clear()
{
    if (m_map.isEmpty())
        return;
    m_map.clear();
    m_keys.clear();
    changed();
}

bool QueueStore::contains(const QString &path) const
{
    return m_keys.contains(QueuePath::key(QueuePath::kept(path)));
}

void QueueStore::changed()
{
    m_isChanged = true;
    m_saveSoon.start();
}

void QueueStore::save()
{
    m_saveSoon.stop();
    // A worker that is at it may not get to the end of it.
    if (!m_isChanged && m_writing == 0)
        return;
    m_isChanged = false;
    m_settings.setValue(QLatin1String(SettingsKeys::PC_Playlist), m_map);
    m_settings.sync();
    qInfo() << "[Playlist] saved:" << m_map.size();
}

void QueueStore::saveOnWorker()
{
    if (!m_isChanged)
        return;
    m_isChanged = false;
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>(1);
    ++m_writing;
    m_worker->addTask(
        [settings = &m_settings, map = m_map] {
            settings->setValue(QLatin1String(SettingsKeys::PC_Playlist), map);
            settings->sync();
        },
        [this] {
            --m_writing;
            emit savedSoon();
        });
}

int QueueStore::loopType() const
{
    return m_settings.valueOr(QLatin1String(SettingsKeys::PC_PlaylistLoopType), 0);
}

void QueueStore::setLoopType(int type)
{
    m_settings.setValue(QLatin1String(SettingsKeys::PC_PlaylistLoopType), type);
}

int QueueStore::sortType() const
{
    return m_settings.valueOr(QLatin1String(SettingsKeys::PC_PlaylistSortType), 0);
}

void QueueStore::setSortType(int type)
{
    m_settings.setValue(QLatin1String(SettingsKeys::PC_PlaylistSortType), type);
}
