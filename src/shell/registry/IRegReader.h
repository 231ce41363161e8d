// Reads the registry, for those who have to know what stands there before they change it.
#pragma once

#include "RegTypes.h"

#include <optional>
#include <string>

class IRegReader {
public:
    virtual ~IRegReader() = default;

    // Empty when key or value is missing, can't be read or holds no text. An empty name is the key's default
    // value.
    [[nodiscard]] virtual std::optional<std::string> stringValue(RegRoot root, const std::string &keyPath,
                                                                 const std::string &name) const = 0;
    [[nodiscard]] virtual std::optional<std::uint32_t> dwordValue(RegRoot root, const std::string &keyPath,
                                                                  const std::string &name) const = 0;
    [[nodiscard]] virtual bool hasKey(RegRoot root, const std::string &keyPath) const = 0;
};
