// What a short path that ends as a drive root does may mean on this system.
#pragma once

class QString;

namespace DriveRootRule {

// path has two to four characters and ends in "\", "/" or ":".
[[nodiscard]] bool mayBeRoot(const QString &path);

} // namespace DriveRootRule
