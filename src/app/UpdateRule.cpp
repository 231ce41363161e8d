#include "UpdateRule.h"

#include "core/SettingsDefaults.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

namespace UpdateRule {

bool wantsCheck(const SettingsManager &store)
{
    return store.valueOr<bool>(QLatin1String(SettingsKeys::PC_CheckUpdate), SettingsDefaults::PC_CheckUpdate);
}

} // namespace UpdateRule
