// What the registry's operators speak: results and root handles. Without Qt and without a system's headers,
// so that the helper program and the tests of both systems compile it alike.
#pragma once

#include <cstdint>

using RegResult = std::int32_t;

namespace RegResults {

inline constexpr RegResult Success = 0;
inline constexpr RegResult Failure = static_cast<RegResult>(0x80004005u);
// There was no operator to ask.
inline constexpr RegResult NoOperator = static_cast<RegResult>(0x80004003u);

} // namespace RegResults

// A predefined root of the registry; on Windows the system's own handle goes in as it is.
using RegRoot = void *;

namespace RegRoots {

// The numbers by which the task file names the roots.
enum Index { ClassesRoot, CurrentUser, LocalMachine, Users, CurrentConfig, Count };

namespace Detail {

// The handles' values are fixed for good; the one left out is that of the performance counters.
inline constexpr std::uint32_t kValues[Count] = {0x80000000u, 0x80000001u, 0x80000002u, 0x80000003u,
                                                 0x80000005u};

} // namespace Detail

// Null for a number that names no root.
[[nodiscard]] inline RegRoot handle(int index)
{
    if (index < 0 || index >= Count)
        return nullptr;
    const auto value = static_cast<std::int32_t>(Detail::kValues[index]);
    return reinterpret_cast<RegRoot>(static_cast<std::intptr_t>(value));
}

// -1 for a handle that is none of the five.
[[nodiscard]] inline int index(RegRoot root)
{
    for (int candidate = 0; candidate < Count; ++candidate) {
        if (handle(candidate) == root)
            return candidate;
    }
    return -1;
}

} // namespace RegRoots
