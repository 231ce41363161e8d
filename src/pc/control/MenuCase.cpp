#include "MenuCase.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QCoreApplication>

namespace MenuCase {

bool playsByMenu(const Source &source, const SettingsManager &settings)
{
    if (source.titleNumber != -1)
        return false;
    switch (source.disc) {
    case Disc::BluRay:
        return settings.value(SettingsKeys::PC_BDPlayMode).toBool();
    case Disc::Dvd:
        return settings.value(SettingsKeys::PC_DVDPlayMode).toBool();
    case Disc::None:
        break;
    }
    return false;
}

int seekControl(bool hasMenu)
{
    return hasMenu ? 0 : 1;
}

bool showsBdavNote(const Source &source, const SettingsManager &settings)
{
    return source.disc == Disc::BluRay && source.isBdav
           && !settings.value(SettingsKeys::PC_BDAVRemindShowAgain).toBool();
}

void suppressBdavNote(SettingsManager &settings)
{
    settings.setValue(SettingsKeys::PC_BDAVRemindShowAgain, true);
}

QString bdavNote()
{
    return QCoreApplication::translate(
        "MenuCase", "Quorin Player 6 can play back the BDAV discs in Simple mode only, but you "
                    "can switch titles from the Playlist.");
}

} // namespace MenuCase
