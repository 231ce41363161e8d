#include "ScreenSaver.h"

#include "ScreenSaverInhibitor_linux.h"

#include <QCoreApplication>

namespace {

// Made at the first call and never destroyed: the desktop drops the inhibition when the process ends.
ScreenSaverInhibitor &inhibitor()
{
    static ScreenSaverInhibitor *const made = [] {
        auto *object = new ScreenSaverInhibitor(ScreenSaverInhibitor::sessionBusAddress());
        // The bus is usable only with an application object; until there is one the wish is remembered. With
        // one a routine would run at once, inside this very initialisation.
        if (QCoreApplication::instance() == nullptr)
            qAddPreRoutine([] { inhibitor().apply(); });
        return object;
    }();
    return *made;
}

} // namespace

void ScreenSaver::disable()
{
    inhibitor().setInhibited(true);
}

void ScreenSaver::enable()
{
    inhibitor().setInhibited(false);
}
