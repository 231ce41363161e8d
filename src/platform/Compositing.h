// Whether the display blends translucent windows over what lies below them. GUI thread only.
//
// The answer may change while the program runs, when the user starts or ends a compositor, so ask again each
// time something is shown.
#pragma once

namespace Compositing {

[[nodiscard]] bool isActive();

// Hands what was asked of the display over to it now. By itself that may wait for the next event, and a fade
// that nothing else goes along with would then stand still and jump.
void flush();

} // namespace Compositing
