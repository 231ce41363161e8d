// Whether the display blends translucent windows over what lies below them. GUI thread only.
//
// The answer may change while the program runs, when the user starts or ends a compositor, so ask again each
// time something is shown.
#pragma once

namespace Compositing {

[[nodiscard]] bool isActive();

} // namespace Compositing
