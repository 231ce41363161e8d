#include "FolderOpener.h"

#include "core/ThreadWorker.h"

namespace {

constexpr int kStopMs = 200;

} // namespace

FolderOpener::FolderOpener(const QString &busAddress, OpenFolder openFolder)
    : m_busAddress(busAddress)
    , m_openFolder(std::move(openFolder))
{
}

FolderOpener::~FolderOpener()
{
    if (m_worker)
        m_worker->stop(kStopMs);
}

void FolderOpener::show(const QString &path)
{
    if (path.isEmpty())
        return;
    if (!m_worker)
        m_worker = std::make_unique<ThreadWorker>(1);
    m_worker->addTask([bus = m_busAddress, path, open = m_openFolder] { showNow(bus, path, open); });
}
