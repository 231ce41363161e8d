// One recorded change of the registry, as it stands in the task file.
#pragma once

#include <cstdint>
#include <string>

struct RegTask {
    enum OpType : std::int32_t {
        SetValue,
        SetValue64,
        DeleteValue,
        DeleteValue64,
        DeleteKey,
        DeleteKey64,
        RegisterServer,
        UnregisterServer
    };
    enum ValueType : std::int32_t { String = 0, Number = 2 };
    // What tasks of a server have in place of a root.
    static constexpr std::int32_t NoRoot = 5;

    std::int32_t opType{SetValue};
    std::int32_t rootType{0};
    // For a server its folder.
    std::string keyPath;
    // Name of the value or of the subkey; for a server its file.
    std::string keyName;
    std::int32_t valueType{String};
    std::int32_t numberValue{0};
    // Of a number the decimal text.
    std::string keyValue;
};
