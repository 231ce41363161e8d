#include "AddressSpace.h"

#include <sys/mman.h>

void *reserveAddressSpace(std::size_t size)
{
    if (size == 0)
        return nullptr;
    void *block = mmap(nullptr, size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return block == MAP_FAILED ? nullptr : block;
}

void releaseAddressSpace(void *block, std::size_t size)
{
    if (block)
        munmap(block, size);
}
