// One way to change the registry: at once, recorded for a helper with more rights, or by choice of the two.
//
// All texts are in the system's narrow code page. An empty value name is a key's default value. Results are
// those of RegTypes.h; nothing throws. An operator is used by one thread at a time, and Commit() may block
// until the user has answered and the helper has ended: keep it off the GUI thread.
#pragma once

#include "RegTypes.h"

#include <cstdint>
#include <string>

class IRegOperator {
public:
    IRegOperator() = default;
    IRegOperator(const IRegOperator &) = delete;
    IRegOperator &operator=(const IRegOperator &) = delete;
    virtual ~IRegOperator() = default;

    virtual RegResult SetStringValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                     const std::string &value) = 0;
    virtual RegResult SetDwordValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                    std::uint32_t value) = 0;
    // These two write into the 64-bit view of the machine's hive, whatever the root.
    virtual RegResult SetStringValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                                       const std::string &value) = 0;
    virtual RegResult SetDwordValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                                      std::uint32_t value) = 0;
    // Deleting what is not there is a success.
    virtual RegResult DeleteValue(RegRoot root, const std::string &keyPath, const std::string &name) = 0;
    virtual RegResult DeleteValue64(RegRoot root, const std::string &keyPath, const std::string &name) = 0;
    // With all that lies below it. A subkey has to be named: no call empties keyPath itself.
    virtual RegResult DeleteKey(RegRoot root, const std::string &keyPath, const std::string &subKey) = 0;
    virtual RegResult DeleteKey64(RegRoot root, const std::string &keyPath, const std::string &subKey) = 0;
    // Success means that the system's tool has started.
    virtual RegResult RegisterServer(const std::string &folder, const std::string &fileName) = 0;
    virtual RegResult UnregisterServer(const std::string &folder, const std::string &fileName) = 0;
    // 1 for success, 0 for failure.
    virtual int Commit() = 0;
};
