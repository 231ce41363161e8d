// Which pictures the library knows. Any thread.
#pragma once

#include <QString>

class IArtworkKeys {
public:
    virtual ~IArtworkKeys() = default;

    // Whether some record names the picture by exactly this key (LibraryRecords.h). Costs the same for any
    // size of the library.
    [[nodiscard]] virtual bool isNamed(const QString &key) const = 0;
};
