// What proves an action: how things stand before, where its effect is read, and what is there in the end.
// The effect is read from libmpv, from a file that was written or from the window; never from the call.
#pragma once

#include "ActionRig.h"

#include <vector>

struct ActionProof {
    static constexpr char Film[] = "film.mkv"; // 150 s, three tracks of each kind, chapters at 0, 40 and 80 s

    // Of the menu's entry, with its argument; empty for an operation that stands in no menu.
    const char *key;
    ActionRig::Read read;
    QString wanted;
    std::function<void(ActionRig &)> prepare{};
    const char *clip{Film};
    ActionRig::Answer answer{}; // of the modal window that the action opens
    KeyOperateType operation{KeyOperate_Reserved};
};

namespace ActionProofs {

// Of the entries of the menu, each at least once.
[[nodiscard]] std::vector<ActionProof> ofMenu();
// Of the operations that have a key and no entry.
[[nodiscard]] std::vector<ActionProof> ofKeysAlone();

// Entries and operations that this engine has nothing for: it plays discs title by title. The entries are
// greyed, and the engine says so when it is asked by a key.
[[nodiscard]] std::vector<const char *> entriesOfDiscMenus();
[[nodiscard]] std::vector<KeyOperateType> operationsOfDiscMenus();

// Puts an arbitrary source's letter behind a drive.
inline constexpr char DiscDrive = 'Q';

} // namespace ActionProofs
