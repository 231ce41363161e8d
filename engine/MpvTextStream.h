// Gives libmpv the texts of SubtitleText by their addresses. Lives on the threads of libmpv.
#pragma once

#include <atomic>

struct mpv_handle;

namespace MpvTextStream {

// codePage: what the user has chosen for files in a code page, 0 guesses it; must outlive the handle. False,
// with the reason in the log, where libmpv refuses.
bool addTo(mpv_handle *handle, std::atomic<int> &codePage);

} // namespace MpvTextStream
