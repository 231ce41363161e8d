#include "FilePresence.h"

#include "core/ThreadWorker.h"

#include <QFileInfo>

namespace {

// So that a few network folders that do not answer leave room for the others.
constexpr int kThreads = 4;
constexpr int kStopMs = 200;

bool existsOnDisk(const QString &path)
{
    return path.size() == 1 || QFileInfo::exists(path);
}

} // namespace

FilePresence::FilePresence(QObject *parent)
    : FilePresence(existsOnDisk, parent)
{
}

FilePresence::FilePresence(Exists exists, QObject *parent)
    : QObject(parent)
    , m_exists(std::move(exists))
    , m_latest(std::make_shared<std::atomic<quint64>>(0))
{
}

FilePresence::~FilePresence()
{
    ++*m_latest;
    if (m_worker)
        m_worker->stop(kStopMs);
}

void FilePresence::check(const QStringList &paths)
{
    const quint64 number = ++*m_latest;
    if (paths.isEmpty())
        return;
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>(0);
    m_worker->setThreadCount(qMin(paths.size(), kThreads));
    for (const QString &path : paths) {
        const auto isPresent = std::make_shared<bool>(false);
        m_worker->addTask([path, isPresent, number, latest = m_latest,
                           exists = m_exists] { *isPresent = *latest == number && exists(path); },
                          [this, path, isPresent, number] {
                              if (*m_latest == number)
                                  emit checked(path, *isPresent);
                          });
    }
}
