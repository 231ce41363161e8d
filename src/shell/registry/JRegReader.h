// Reads the registry that JRegOperator writes. Needs no raised rights. Safe on every thread.
#pragma once

#include "IRegReader.h"

class JRegReader final : public IRegReader {
public:
    [[nodiscard]] std::optional<std::string> stringValue(RegRoot root, const std::string &keyPath,
                                                         const std::string &name) const override;
    [[nodiscard]] std::optional<std::uint32_t> dwordValue(RegRoot root, const std::string &keyPath,
                                                          const std::string &name) const override;
    [[nodiscard]] bool hasKey(RegRoot root, const std::string &keyPath) const override;
};
