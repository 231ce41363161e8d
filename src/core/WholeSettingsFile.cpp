#include "WholeSettingsFile.h"

#include <QEvent>
#include <QFile>
#include <QSettings>
#include <QVariant>

#include <filesystem>
#include <system_error>

namespace {

constexpr char kBeforeSuffix[] = ".before";

std::filesystem::path native(const QString &path)
{
    return std::filesystem::path(path.toStdU16String());
}

// Takes no room on the disk. False where there is no file yet or the file system has no such links.
bool keep(const QString &file, const QString &before)
{
    std::error_code error;
    std::filesystem::remove(native(before), error);
    std::filesystem::create_hard_link(native(file), native(before), error);
    return !error;
}

bool isSame(const QString &file, const QString &before)
{
    std::error_code error;
    return std::filesystem::equivalent(native(file), native(before), error) && !error;
}

} // namespace

WholeSettingsFile::WholeSettingsFile(QSettings &settings, std::mutex &mutex)
    : QObject(&settings)
    , m_settings(settings)
    , m_mutex(mutex)
{
    m_retry.setSingleShot(true);
    m_retry.setInterval(RetryMs);
    connect(&m_retry, &QTimer::timeout, this, &WholeSettingsFile::writeByItself);
    m_settings.installEventFilter(this);
}

bool WholeSettingsFile::sync()
{
    return write([this] { m_settings.sync(); });
}

bool WholeSettingsFile::write(const std::function<void()> &step)
{
    if (m_isAbandoned)
        return true;
    const QString file = m_settings.fileName();
    const QString before = file + QLatin1String(kBeforeSuffix);
    const bool hasBefore = keep(file, before);
    step();
    m_hasFailed = false;
    if (hasBefore && isSame(file, before)) {
        // Nothing was written: there was nothing to write, or it could not be.
        m_hasFailed = m_settings.status() == QSettings::AccessError;
    } else if (isCut()) {
        bringBack(hasBefore);
        m_hasFailed = true;
    }
    QFile::remove(before);
    return !m_hasFailed;
}

// One line stands for each key, and each ends.
bool WholeSettingsFile::isCut() const
{
    QFile file(m_settings.fileName());
    if (!file.open(QIODevice::ReadOnly))
        return false;
    int lines = 0;
    bool isEnded = true;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        isEnded = line.endsWith('\n');
        lines += !line.startsWith('[') && line.contains('=') ? 1 : 0;
    }
    return !isEnded || lines < m_settings.allKeys().size();
}

void WholeSettingsFile::bringBack(bool hasBefore)
{
    QMap<QString, QVariant> wanted;
    const QStringList keys = m_settings.allKeys();
    for (const QString &key : keys)
        wanted.insert(key, m_settings.value(key));
    const QString file = m_settings.fileName();
    if (hasBefore) {
        std::error_code error;
        std::filesystem::rename(native(file + QLatin1String(kBeforeSuffix)), native(file), error);
    } else {
        QFile::remove(file);
    }
    // Reads what is there now, with nothing pending.
    m_settings.sync();
    const QStringList there = m_settings.allKeys();
    for (const QString &key : there) {
        if (!wanted.contains(key))
            m_settings.remove(key);
    }
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        if (m_settings.value(it.key()) != it.value())
            m_settings.setValue(it.key(), it.value());
    }
}

bool WholeSettingsFile::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != &m_settings || event->type() != QEvent::UpdateRequest)
        return QObject::eventFilter(watched, event);
    // The changes that a failure makes pending again ask for this at once.
    if (m_hasFailed)
        m_retry.start();
    else
        writeByItself();
    return true;
}

void WholeSettingsFile::writeByItself()
{
    const std::lock_guard lock(m_mutex);
    (void)write([this] {
        QEvent update(QEvent::UpdateRequest);
        static_cast<QObject &>(m_settings).event(&update);
    });
}
