// The default key maps of both faces, the names of the operations, and the rule by which two keys are one.
//
// Pure tables: no state, any thread. Names are translated, so they are for the GUI thread.
#pragma once

#include "KeyOperateType.h"

#include <QKeySequence>
#include <QList>
#include <QString>

namespace KeyMapTables {

enum class Mode { Pc, Tv };

// The defaults less what the mode does not offer.
[[nodiscard]] KeyMap defaultPcKeyMap();
[[nodiscard]] KeyMap defaultTvKeyMap();
[[nodiscard]] KeyMap defaultKeyMap(Mode mode);

// The defaults before the removal.
[[nodiscard]] KeyMap fullKeyMap(Mode mode);

// Operations that the settings table of a mode does not show.
[[nodiscard]] QList<int> removedKeys(Mode mode);

// Operations that a stored map of an earlier version may lack and gets at loading.
[[nodiscard]] QList<int> mustHavePcKeys();
[[nodiscard]] QList<int> mustHaveTvKeys();
[[nodiscard]] QList<int> mustHaveKeys(Mode mode);

// The order of the settings table.
[[nodiscard]] QList<int> settingsOrder();

// The stored map ready for use: the defaults when it is empty, else the must-have operations added; without
// those that nobody knows.
[[nodiscard]] KeyMap completed(KeyMap stored, Mode mode);

// One value for the keypad's keys and the main ones, and for Return and Enter.
[[nodiscard]] int normalizedKey(int key);

// The first operation, in ascending order, whose key equals this one; -1 when there is none.
[[nodiscard]] int operationOf(const KeyMap &map, int key);

// True for a modifier alone and for no key at all.
[[nodiscard]] bool isModifierOrNone(int key);

// False for what is pressed for the sake of other keys, a modifier or a lock, and for keys that have no code:
// no operation can have them.
[[nodiscard]] bool isBindable(int key);

// The operation in the words of the settings page; empty for an unknown one.
[[nodiscard]] QString keyOperateName(int type);

// The key as the platform writes it; the word "None" for an operation without a key, empty for one that the
// map lacks.
[[nodiscard]] QString keyText(const KeyMap &map, int type);
[[nodiscard]] QKeySequence keySequence(const KeyMap &map, int type);

} // namespace KeyMapTables
