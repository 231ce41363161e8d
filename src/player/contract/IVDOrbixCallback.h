// Notes of the engine library that belong to no play. Implemented by the player; called on engine threads.
#pragma once

#include "VDTypes.h"

namespace libvp {

class IVDOrbixCallback {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    // 1. A note; playback goes on unless the type says otherwise.
    virtual void OnError(VD_ErrorCallbackType type) = 0;

    // 2. Ignored.
    virtual void reserved2(int first, int second) = 0;

    // 3. A disc came or went. The discs that are in when the engine starts raise nothing, nor does what
    // stands behind a letter when the letter is bound to it.
    virtual void OnDiscEvent(char drive, VD_OPTRA_DISC_NOTIFY_TYPE type) = 0;

    // 4. A disc cannot be used.
    virtual void OnDiscError(char drive, VD_OPTRA_DISC_ERROR_TYPE type) = 0;

protected:
    ~IVDOrbixCallback() = default;
};

} // namespace libvp
