#include "ScreenSaverRule.h"

#include "core/SettingsDefaults.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

namespace ScreenSaverRule {

bool staysOff(const SettingsManager &store)
{
    return store.valueOr<bool>(QLatin1String(SettingsKeys::PC_DisableScreenSaver),
                               SettingsDefaults::PC_DisableScreenSaver);
}

} // namespace ScreenSaverRule
