// Which episode of a show a file is, told by its name alone.
//
// Any thread; touches no disk.
#pragma once

#include <QString>

#include <optional>

struct EpisodeName {
    QString show; // folded for comparison, empty where the name begins with the number
    int season{1};
    int first{0};
    int last{0}; // of a file that holds several, otherwise as first

    // Reads "Show S01E02", "S01E02-E03", "1x02", "Season 1 Episode 2", "Ep 02" and their spellings with other
    // separators. folder is the name of the folder that holds the file: a season stands there where the file
    // has none. Nothing for a name without an episode; a year, a resolution or a codec is none.
    [[nodiscard]] static std::optional<EpisodeName> parse(const QString &baseName,
                                                          const QString &folder = {});

    // The season of "Season 02", "Staffel 2", "S02" or "Specials" (0); -1 for other folders.
    [[nodiscard]] static int seasonOfFolder(const QString &folder);

    // Order of broadcast within a show.
    [[nodiscard]] bool isAfter(const EpisodeName &other) const
    {
        return season != other.season ? season > other.season : first > other.last;
    }
};
