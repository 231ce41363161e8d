#include "DriveRootRule.h"

#include <QString>

namespace DriveRootRule {

bool mayBeRoot(const QString &path)
{
    // "/tm/" is a folder here; only a letter with its colon names a drive.
    const ushort letter = path.at(0).toLower().unicode();
    return letter >= 'a' && letter <= 'z' && path.at(1) == QLatin1Char(':');
}

} // namespace DriveRootRule
