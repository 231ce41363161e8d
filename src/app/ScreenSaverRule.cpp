#include "ScreenSaverRule.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

namespace ScreenSaverRule {

bool staysOff(const SettingsManager &store)
{
    const QString key = QLatin1String(SettingsKeys::PC_DisableScreenSaver);
    return !store.contains(key) || store.value(key).toBool();
}

} // namespace ScreenSaverRule
