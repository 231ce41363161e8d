// What a list is asked for: which library role, in which order, with which restrictions, and which part of
// it.
#pragma once

#include <QString>
#include <QVector>

// The numbers are those of the wire and of the player.
enum class Role { Movies = 1, Collections = 2, TvShows = 3, Videos = 4, Adult = 5, Music = 6 };

enum class SortMethod { Title, Year, DateAdded, Rating, ModifiedTime };

// One element of a filter: the field ("country", "genre" or "year") holds the value.
struct FieldFilter {
    QString field;
    QString value;

    [[nodiscard]] bool operator==(const FieldFilter &other) const
    {
        return field == other.field && value == other.value;
    }
};

struct ListRequest {
    SortMethod sort{SortMethod::Title};
    bool ascending{true};
    QVector<FieldFilter> filters;
    QString pattern; // text searched in titles, without regard to case; empty: no search
    int start{0};
    int end{0}; // exclusive
};

// A part of a list with the length of the whole.
template<typename Record>
struct Page {
    int total{0};
    QVector<Record> rows;
};
