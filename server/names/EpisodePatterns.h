// The spellings of an episode's number that need no help from the folder around: S01E02, 1x02, "Season 3
// Episode 9", ep01 and dates.
//
// One pass over the name for each spelling, from the surest to the least sure; each looks a bounded distance
// ahead. Pure; any thread.
#pragma once

#include <QDate>
#include <QString>

struct EpisodeMatch {
    // How sure the spelling is: a word with a number and "10x10" are titles of films too.
    enum class Spelling { Sure, Cross, Word };

    Spelling spelling{Spelling::Sure};
    int start{-1};
    int end{-1};
    int season{-1}; // -1: the spelling tells none
    int episode{-1};
    int lastEpisode{-1};
    QDate date;

    [[nodiscard]] bool isValid() const { return start >= 0; }
};

namespace EpisodePatterns {

// folded: as NameText::folded() gives it.
[[nodiscard]] EpisodeMatch find(const QString &folded);

// What follows an episode's number of the same file: "-E03", "E03", "-03", "-S01E03", "-1x03". Returns the
// position behind it and raises the last number; the position itself where nothing of that kind follows.
[[nodiscard]] int skipFurtherNumbers(const QString &folded, int position, int first, int &last);

} // namespace EpisodePatterns
