// The source that IVDPlay::open() is to open. Implemented by the player; the engine reads it during open()
// only. Texts are UTF-8 and the player's.
#pragma once

namespace libvp {

class IVDFileItem {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    // 1. File, image, folder, or a single drive letter.
    virtual const char *path() = 0;

    // 2. Answers 0.
    virtual int reserved2() = 0;

    // 3. A second path that belongs to the source; empty when there is none.
    virtual const char *auxiliaryPath() = 0;

    // 4. 0.
    virtual int flags() = 0;

    // 5. VD_ItemType.
    virtual int itemType() = 0;

protected:
    ~IVDFileItem() = default;
};

} // namespace libvp
