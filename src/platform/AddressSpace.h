// Blocks of address space without memory behind them: reading or writing one faults until its owner commits
// it. Safe on every thread.
#pragma once

#include <cstddef>

// Null when the size is 0 or the system refuses.
[[nodiscard]] void *reserveAddressSpace(std::size_t size);

// The size is the one that was reserved. A null block is ignored.
void releaseAddressSpace(void *block, std::size_t size);
