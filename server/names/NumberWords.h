// The words for "season" and "episode" in several languages, with the number that belongs to them.
//
// Pure; any thread. Texts are lower case, as NameText::folded() gives them.
#pragma once

#include <QString>

namespace NumberWords {

enum class Kind { Season, Episode };

struct Match {
    int value{-1};
    int length{0};

    [[nodiscard]] bool isValid() const { return length > 0; }
};

// "season 3", "staffel.3", "s03"-less spellings, "第3季" at the position; the number ends at a boundary.
[[nodiscard]] Match at(const QString &folded, int position, Kind kind);

// "1. staffel", "2nd season", "3 сезон" at the position: the number comes first.
[[nodiscard]] Match ordinalAt(const QString &folded, int position, Kind kind);

} // namespace NumberWords
