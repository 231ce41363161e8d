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

struct Wish {
    bool disabled{false};
    bool playing{false};
};

Wish &wish()
{
    static Wish kept;
    return kept;
}

void carryOut()
{
    inhibitor().setInhibited(wish().disabled && wish().playing);
}

} // namespace

void ScreenSaver::disable()
{
    wish().disabled = true;
    carryOut();
}

void ScreenSaver::enable()
{
    wish().disabled = false;
    carryOut();
}

void ScreenSaver::setPlaying(bool playing)
{
    wish().playing = playing;
    carryOut();
}
