// What a proposal of a search stands for, as it travels in MatchRecord::strMediaId: the number that the
// provider gives, "local:12" and "localshow:7" for entries of the library, "name:Stalker|1979" for a name as
// a user typed it.
#pragma once

#include <QString>

struct MediaId {
    enum class Kind { None, Provider, Item, Show, Name };

    Kind kind{Kind::None};
    QString provider;
    int record{0};
    QString title;
    int year{0};

    // Kind::None for what is no id.
    [[nodiscard]] static MediaId parse(const QString &text);

    [[nodiscard]] static QString ofItem(int idFile);
    [[nodiscard]] static QString ofShow(int idTvshow);
    [[nodiscard]] static QString ofName(const QString &title, int year);
};
