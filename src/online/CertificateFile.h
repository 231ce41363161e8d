// The certificate file that lies beside the program and that secured posts trust. Any thread.
#pragma once

#include <QString>

namespace CertificateFile {

// The first known file that exists in folder. With none of them the log says so, the answer is empty, and
// the system's own store is to be used.
[[nodiscard]] QString find(const QString &folder);

} // namespace CertificateFile
