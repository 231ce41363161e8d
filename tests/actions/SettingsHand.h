// The settings dialog in the hands of a user: its controls are what is set and what is looked at, never the
// values behind them. GUI thread, while the dialog is open.
#pragma once

#include <QString>
#include <QVariant>

class NormalSettingPage;
class SettingRowWidget;

namespace SettingsHand {

// False where the control is greyed, is not there, or does not take the value.
[[nodiscard]] bool set(NormalSettingPage &dialog, const char *key, const QVariant &value);
// What the control shows; invalid where there is none.
[[nodiscard]] QVariant shown(NormalSettingPage &dialog, const char *key);
// Gives an operation of PC mode another key, in the table of keys.
[[nodiscard]] bool setKey(NormalSettingPage &dialog, int operation, int key);

} // namespace SettingsHand
