// Whether a disc plays by its menu, and what follows from that for the window.
//
// Plain functions; any thread.
#pragma once

#include <QString>

class SettingsManager;

namespace MenuCase {

enum class Disc { None, Dvd, BluRay };

struct Source {
    Disc disc{Disc::None};
    bool isBdav{false};  // recorded Blu-ray without menus
    int titleNumber{-1}; // -1: no title was asked for
};

[[nodiscard]] bool playsByMenu(const Source &source, const SettingsManager &settings);

// What the transport bar is told: 1 shows its seek control, 0 hides it, since a menu has no position.
[[nodiscard]] int seekControl(bool hasMenu);

// The note about recorded discs: for those alone, until the user has silenced it.
[[nodiscard]] bool showsBdavNote(const Source &source, const SettingsManager &settings);
void suppressBdavNote(SettingsManager &settings);
[[nodiscard]] QString bdavNote();

} // namespace MenuCase
