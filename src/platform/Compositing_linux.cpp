#include "Compositing.h"

#include <QX11Info>

#include <xcb/xcb.h>

namespace Compositing {

bool isActive()
{
    // Only an X server may be without a compositor; every other display has one of its own.
    return !QX11Info::isPlatformX11() || QX11Info::isCompositingManagerRunning();
}

void flush()
{
    if (QX11Info::isPlatformX11())
        xcb_flush(QX11Info::connection());
}

} // namespace Compositing
