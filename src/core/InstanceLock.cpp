#include "InstanceLock.h"

#include "ApplicationInfoManager.h"
#include "WaitBudget.h"

#include <QDeadlineTimer>

namespace {

// Left to itself QLockFile looks again after a tenth of a second at first and then ever more seldom.
constexpr int kLookAgainMs = 10;

} // namespace

InstanceLock::InstanceLock(WaitBudget &budget)
    : m_file(ApplicationInfoManager::instance()->dataFolder() + QStringLiteral("/instance.lock"))
{
    budget.spend([this, deadline = QDeadlineTimer(budget.beforeLastMs())] {
        while (!m_file.tryLock(kLookAgainMs) && m_file.error() == QLockFile::LockFailedError
               && !deadline.hasExpired())
            continue;
    });
}

bool InstanceLock::isHeldElsewhere() const
{
    return !m_file.isLocked() && m_file.error() == QLockFile::LockFailedError;
}
