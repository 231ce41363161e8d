// How a source is to be opened. Implemented by the player; the engine reads it during IVDPlay::open() only.
#pragma once

namespace libvp {

class IVDPlayOptions {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    // 1. Where to start, in seconds; 0 is the beginning.
    virtual double startSeconds() = 0;

    // 2. Where to end, in seconds; 0 is the end of the source.
    virtual double endSeconds() = 0;

    // 3. Title of a disc, playlist or cue sheet to open as a decimal number; empty opens the main title.
    virtual const char *title() = 0;

    // 4. False.
    virtual bool flagA() = 0;

    // 5. Track index from 0, VD_DefaultChoice or VD_ResumeChoice; the same holds for 6 and 7.
    virtual int audioStream() = 0;

    // 6. Subtitle track; VD_NoSubtitle switches subtitles off.
    virtual int subtitleStream() = 0;

    // 7. Angle of a disc, from 0.
    virtual int angle() = 0;

    // 8. Chapter to start at, from 1; -1 leaves the start to startSeconds().
    virtual int chapter() = 0;

    // 9. False opens the source paused on its first frame.
    virtual bool autoStart() = 0;

    // 10. Empty.
    virtual const char *extra() = 0;

    // 11. False.
    virtual bool reserved11() = 0;

    // 12. False.
    virtual bool reserved12() = 0;

    // 13. -1.
    virtual int lastField() = 0;

    // 14. -1.
    virtual int reserved14() = 0;

    // 15. 0.
    virtual int reserved15() = 0;

    // 16. False.
    virtual bool reserved16() = 0;

    // 17. A constant, 1.0.
    virtual float reserved17() = 0;

protected:
    ~IVDPlayOptions() = default;
};

} // namespace libvp
