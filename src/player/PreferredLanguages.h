// The languages of sound and subtitles that the settings ask for, as the engine takes them.
//
// Plain functions; any thread.
#pragma once

#include <QString>

class SettingsManager;

namespace PreferredLanguages {

// Names of the language under which a source may have it, from the first choice on, separated by commas;
// empty for a code that the list of languages has not.
[[nodiscard]] QString namesOf(const QString &code);

// "same" in the settings, and a missing key, stand for the language of the program.
[[nodiscard]] QString ofSound(const SettingsManager &settings);
// The same, and "close" for none at all.
[[nodiscard]] QString ofSubtitles(const SettingsManager &settings);

} // namespace PreferredLanguages
