// Whether the program looks for a new version of itself when it starts.
#pragma once

class SettingsManager;

namespace UpdateRule {

// It does, unless the user has said otherwise.
[[nodiscard]] bool wantsCheck(const SettingsManager &store);

} // namespace UpdateRule
