// Text in code pages where libmpv cannot read it: the one for Windows is built without the libraries that
// know them. Stateless; may be called from any thread.
#pragma once

#include <optional>
#include <string>

namespace LocalCharset {

// False where libmpv does it all itself; the other two then answer nothing.
[[nodiscard]] bool isNeeded();

// The code page that the bytes are in by the looks of them, 0 when that cannot be told.
[[nodiscard]] int guess(const std::string &bytes);

// In UTF-8. Nothing for a code page that the system does not know.
[[nodiscard]] std::optional<std::string> toUtf8(const std::string &bytes, int codePage);

} // namespace LocalCharset
