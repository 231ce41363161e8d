// Changes of the output. Implemented by the player; called on engine threads.
#pragma once

namespace libvp {

class IVDPlaytoolCallback {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    // 1. 0 to 2.0.
    virtual void OnVolumeChanged(float volume) = 0;

    // 2.
    virtual void OnMuteChanged(bool mute) = 0;

protected:
    ~IVDPlaytoolCallback() = default;
};

} // namespace libvp
