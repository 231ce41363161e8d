// What the engine library asks about the program that uses it. Implemented by the player.
//
// The engine may call any operation from any of its threads, from IVDEngineCore::initialise() on; the answers
// never change after that. Texts are UTF-8, the player's, and live as long as the implementation.
#pragma once

#include "VDRecords.h"

#include <cstddef>

namespace libvp {

class IVDPlayerConfig {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    // 1. "qtplayer".
    virtual const char *applicationTag() = 0;

    // 2. "Quorin Media Player".
    virtual const char *productName() = 0;

    // 3. Empty.
    virtual const char *furtherName() = 0;

    // 4. "3.2.0.0".
    virtual const char *productVersion() = 0;

    // 5. 1.
    virtual int productLine() = 0;

    // 6. Empty.
    virtual const char *furtherText6() = 0;

    // 7. Empty.
    virtual const char *furtherText7() = 0;

    // 8. Empty.
    virtual const char *furtherText8() = 0;

    // 9. 0: font folder, 1: application folder, 2 and 3: log folder; others empty.
    virtual const char *path(int index) = 0;

    // 10. 0: "arial.ttf"; others empty.
    virtual const char *fontFile(int index) = 0;

    // 11. 0.
    virtual int reserved11() = 0;

    // 12. 0.
    virtual int reserved12() = 0;

    // 13. 15.
    virtual int featureLevel() = 0;

    // 14. 0.
    virtual int reserved14() = 0;

    // 15. 0.
    virtual int reserved15() = 0;

    // 16. Address space of size bytes, reserved and not accessible; the same block on each later call.
    // Null when the address space is used up.
    virtual void *sharedBlock(std::size_t size) = 0;

    // 17. Disc regions; the player's.
    virtual const VDRegionRecord *regionRecord() = 0;

protected:
    ~IVDPlayerConfig() = default;
};

} // namespace libvp
