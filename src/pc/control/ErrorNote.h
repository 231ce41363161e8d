// Notes of the engine while a source plays: what the user reads, which box silences it, and whether the play
// stops.
//
// Plain functions over a table; any thread.
#pragma once

#include <QString>

class SettingsManager;

namespace ErrorNote {

enum Type : int { HevcInSoftware = 13017, UhdDiscNeedsHardware = 13018, ShaderInvalid = 20005 };

struct Row {
    int type;
    const char *text;        // English, translated by text()
    const char *suppressKey; // setting that silences the note from then on; null: the note always comes
    bool stopsPlay;
};

[[nodiscard]] QString logLine(int type);

// The row of a type, null for types that are only logged.
[[nodiscard]] const Row *rowOf(int type);

// False once the user has silenced the note.
[[nodiscard]] bool isShown(const Row &row, const SettingsManager &settings);
// Silences a note; one that can't be silenced stays as it is.
void suppress(const Row &row, SettingsManager &settings);

[[nodiscard]] QString text(const Row &row);

} // namespace ErrorNote
