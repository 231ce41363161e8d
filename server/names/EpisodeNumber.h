// Which episode of which series a file name speaks of.
//
// Spellings in order of trust: S01E02 and its kin, 1x02, words with numbers, dates, ep01; then, only where
// the folders around say that this is a series (or a team's name in square brackets opens the name), bare
// numbers: "[grp] Foo - 12", "01 - Title", "Foo 889", and as the last guess "Foo 102" for season 1,
// episode 2. Years, sizes of pictures, codecs and sound channels are never numbers of episodes. Pure; any
// thread.
#pragma once

#include "EpisodePatterns.h"

#include <QDate>
#include <QString>

class EpisodeNumber final {
public:
    enum class Source {
        None,
        Explicit, // the name says that this is an episode
        Date,     // season and episode are not set
        Absolute, // a number counted through all seasons, or within the season of the folder
        Guess     // 102 taken apart; absolute holds the number as it stands
    };

    // What the folders around say.
    struct Surroundings {
        bool show{false}; // below a folder that is known to be a series'
        int season{-1};   // of the season folder; -1: not in one
        QString series;   // the title of the series, whose digits are not to be counted
    };

    // name: without the suffix of the file.
    [[nodiscard]] static EpisodeNumber parse(const QString &name);
    [[nodiscard]] static EpisodeNumber parse(const QString &name, const Surroundings &around);

    [[nodiscard]] bool isValid() const { return source != Source::None; }

    Source source{Source::None};
    int season{-1}; // -1: not told
    int episode{-1};
    int lastEpisode{-1}; // of a file that holds several, else the same
    int absolute{-1};
    QDate date;
    QString series; // what stands before the number, as a title; may be empty
    int seriesYear{0};
    QString title; // what stands behind it

private:
    void setTexts(const QString &text, int start, int end);
    void setBareNumber(const EpisodeMatch &match, const Surroundings &around, bool counted);
};
