// The words that tell how a release was made ("1080p", "BluRay", "x264") and where they end a title.
//
// Pure; any thread. The text is always lower case, as NameText::folded() gives it.
#pragma once

#include <QString>

namespace ReleaseWords {

enum class Strength {
    None,
    Weak,  // counts only beside a strong one: "web", "extended", "proper" are words of titles too
    Strong // never a word of a title
};

struct Match {
    Strength strength{Strength::None};
    int length{0};
};

// What starts at the position, which must be the start of a word.
[[nodiscard]] Match at(const QString &folded, int position);

// Where the first strong word stands, or the weak ones just before it; -1 where there is none. The first word
// of the text is never one, so a title remains.
[[nodiscard]] int start(const QString &folded);

// The text holds nothing else, and at least one word.
[[nodiscard]] bool areAll(const QString &folded);

// Lines of a picture that a label tells: 1080 for "1080p" and "Film 1080p", 2160 for "4k"; 0 where it tells
// none.
[[nodiscard]] int resolution(const QString &folded);

} // namespace ReleaseWords
