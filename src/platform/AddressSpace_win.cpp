#include "AddressSpace.h"

#include <windows.h>

void *reserveAddressSpace(std::size_t size)
{
    return size == 0 ? nullptr : VirtualAlloc(nullptr, size, MEM_RESERVE, PAGE_NOACCESS);
}

void releaseAddressSpace(void *block, std::size_t)
{
    if (block)
        VirtualFree(block, 0, MEM_RELEASE);
}
