#include "DriveRootRule.h"

#include <QString>

namespace DriveRootRule {

bool mayBeRoot(const QString &)
{
    return true;
}

} // namespace DriveRootRule
