// The surface that the engine draws into. Implemented by the player; asked once, by createPlayTool().
#pragma once

namespace libvp {

class IVDPlayToolConfig {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    // 1. Width of the native window in device pixels.
    virtual int surfaceWidth() = 0;

    // 2. Height of the native window in device pixels.
    virtual int surfaceHeight() = 0;

    // 3. False.
    virtual bool reserved3() = 0;

    // 4. Address of a block of one window handle (HWND, X11 window id widened to a pointer). The player's;
    // the window lives until the last play is released.
    virtual void *nativeWindow() = 0;

protected:
    ~IVDPlayToolConfig() = default;
};

} // namespace libvp
