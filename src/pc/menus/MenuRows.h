// All entries of the menus, one row each, in the order in which they stand there.
//
// The context menu, the keys and who else offers the same operations read this table, so that each of them
// runs the same branch.
#pragma once

#include "MenuHost.h"
#include "MenuState.h"

#include "keys/KeyOperateType.h"

#include <QVector>

#include <vector>

enum class MenuPlace {
    Top,
    Chapter,
    Video,
    AspectRatio,
    Deinterlace,
    Rotate,
    Audio,
    Subtitle,
    Playback,
    Shaders
};

struct MenuRow {
    enum class Kind {
        Command,
        Submenu,
        List, // as many entries as the state has
        Line
    };
    enum class Need {
        Nothing,
        Source,
        SourceInMenu, // by key also without a source
        DiscMenu,
    };
    static constexpr int NoKeyOperation = -1;

    MenuPlace place;
    Kind kind;
    // Of a list the prefix; the entry's argument follows it.
    const char *key;
    const char *text;
    Need need;
    int keyOperation{NoKeyOperation};
    void (*run)(MenuHost &host, const QString &argument){nullptr};
    bool (*isChecked)(const MenuState &state){nullptr}; // null: can't be checked
    MenuPlace child{MenuPlace::Top};                    // of a submenu
    QVector<MenuState::Entry> MenuState::*entries{nullptr};
};

namespace MenuRows {

[[nodiscard]] const std::vector<MenuRow> &all();

// The row that a key names, with the argument behind its prefix; null for an unknown key.
[[nodiscard]] const MenuRow *find(const QString &key, QString *argument);
[[nodiscard]] const MenuRow *find(KeyOperateType operation);

// Text of the moment in the program's language.
[[nodiscard]] QString text(const MenuRow &row, const MenuState &state);
[[nodiscard]] bool isEnabled(const MenuRow &row, const MenuState &state);

// Runs a row where its needs are met; false where they are not.
bool run(const MenuRow &row, MenuHost &host, const QString &argument = {});

// A file of the shader folder, by its name alone; empty when the name leads elsewhere.
[[nodiscard]] QString shaderPath(const MenuHost &host, const QString &name);

} // namespace MenuRows
