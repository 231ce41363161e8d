// Unpacks an archive that lies in memory. Any thread that may wait for the disc.
#pragma once

#include <QString>

#include <cstddef>

// What an archive may ask for at most.
struct MemZipLimits {
    qint64 entries{10000};
    qint64 totalBytes{512LL * 1024 * 1024};
    // Unpacked bytes for each byte of the archive, counted from freeBytes on.
    qint64 ratio{200};
    qint64 freeBytes{1024 * 1024};
};

class MemZip final {
public:
    // Unpacks data into folder, which is made when it is missing; what lies there under the same name is
    // replaced. Everything is unpacked beside it first and moved in when all of it is whole.
    //
    // False on any error: an archive that is empty, can't be read or whose sums are wrong, an entry that
    // would leave the folder, is a link, encrypted or there twice, more than limits allow, a disc that takes
    // no more. The log tells it, and nothing of the archive is left in the folder.
    [[nodiscard]] static bool Unzip(const char *data, std::size_t size, const QString &folder,
                                    const MemZipLimits &limits = {});
};
