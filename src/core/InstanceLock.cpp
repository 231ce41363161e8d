#include "InstanceLock.h"

#include "ApplicationInfoManager.h"

namespace {

constexpr int kWaitMs = 1000;

} // namespace

InstanceLock::InstanceLock()
    : m_file(ApplicationInfoManager::instance()->dataFolder() + QStringLiteral("/instance.lock"))
{
    m_file.tryLock(kWaitMs);
}
