// Changes the registry at once. On Windows with the system's calls; elsewhere in the user's hive file, where
// the 64-bit view is the machine's hive itself and there are no servers to register.
#pragma once

#include "IRegOperator.h"

class JRegOperator final : public IRegOperator {
public:
    RegResult SetStringValue(RegRoot root, const std::string &keyPath, const std::string &name,
                             const std::string &value) override;
    RegResult SetDwordValue(RegRoot root, const std::string &keyPath, const std::string &name,
                            std::uint32_t value) override;
    RegResult SetStringValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                               const std::string &value) override;
    RegResult SetDwordValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                              std::uint32_t value) override;
    RegResult DeleteValue(RegRoot root, const std::string &keyPath, const std::string &name) override;
    RegResult DeleteValue64(RegRoot root, const std::string &keyPath, const std::string &name) override;
    RegResult DeleteKey(RegRoot root, const std::string &keyPath, const std::string &subKey) override;
    RegResult DeleteKey64(RegRoot root, const std::string &keyPath, const std::string &subKey) override;
    RegResult RegisterServer(const std::string &folder, const std::string &fileName) override;
    RegResult UnregisterServer(const std::string &folder, const std::string &fileName) override;
    int Commit() override;
};
