// What the name of a season's folder says: "Season 1", "S01", "Staffel 1", "第1季", "Specials".
//
// Pure; any thread.
#pragma once

#include <QString>

class SeasonFolder final {
public:
    [[nodiscard]] static SeasonFolder parse(const QString &name);

    [[nodiscard]] bool isValid() const { return number >= 0; }

    int number{-1}; // 0: specials; -1: this is no season's folder
    QString series; // "Foo" of "Foo Season 1" and "Foo.S01.1080p"; empty where only the season is named
    int seriesYear{0};
};
