// Notifications of one play. Implemented by the player.
//
// Every operation is called on an engine thread, one at a time and in order, never under an engine lock; the
// player may call back into the engine from it, but for IVDPlay::close() and IVDPlayTool::releasePlay().
// Nothing arrives after IVDPlay::close() has returned. Pointers are the engine's and valid during the call.
#pragma once

#include "VDRecords.h"
#include "VDTypes.h"

namespace libvp {

class IVDPlayCallback {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    // 1. The source ran to its end. OnStopInfo has come before it.
    virtual void OnPlayBackEnded() = 0;

    // 2. The source is open and its first frame, or sound, is out. Once a play.
    virtual void OnPlayBackStarted() = 0;

    // 3.
    virtual void OnPlayBackPaused() = 0;

    // 4.
    virtual void OnPlayBackResumed() = 0;

    // 5. Where the play stopped, with its last frame. Once a play that had started.
    virtual void OnStopInfo(vdStopPlayInfo info) = 0;

    // 6. The play was closed before its end.
    virtual void OnPlayBackStopped() = 0;

    // 7.
    virtual void OnQueueNextItem() = 0;

    // 8. A seek was taken up: from, to, in milliseconds.
    virtual void OnPlayBackSeek(int positionMs, int targetMs) = 0;

    // 9. From 1.
    virtual void OnPlayBackSeekChapter(int chapter) = 0;

    // 10. 1 normal, 0 paused, below 0 backwards.
    virtual void OnPlayBackSpeedChanged(float speed) = 0;

    // 11. The source cannot be played; the record tells what is known. The last call of the play but for a
    // stop.
    virtual void OnPlayBackFailed(int error, vdFileInfo info) = 0;

    // 12. The disc is of a kind that this drive or engine refuses.
    virtual void OnDiscRefused(int error, const char *message, vdFileInfo info) = 0;

    // 13.
    virtual void reserved13(int first, int second) = 0;

    // 14. Several times a second while playing; total 0 when unknown.
    virtual void OnTime(int positionMs, int totalMs) = 0;

    // 15. -1: the source has no titles.
    virtual void OnTitle(int title) = 0;

    // 16. current from 1, 0 before the first; count 0 without chapters.
    virtual void OnChapter(int current, int count) = 0;

    // 17. The video track, at the start and at each change.
    virtual void OnVideoInfo(const VDVideoInfo *info) = 0;

    // 18. The audio track that plays.
    virtual void OnAudioInfo(const VDAudioInfo *info) = 0;

    // 19. The subtitle track that shows.
    virtual void OnSubtitleInfo(const VDSubtitleInfo *info) = 0;

    // 20.
    virtual void reserved20(int first, int second) = 0;

    // 21.
    virtual void reserved21(int first, int second) = 0;

    // 22. VD_DynamicRange.
    virtual void OnDynamicRange(int range) = 0;

    // 23.
    virtual void OnSeekState(VD_SeekState state) = 0;

    // 24.
    virtual void reserved24() = 0;

    // 25.
    virtual void reserved25(int value) = 0;

    // 26.
    virtual void reserved26() = 0;

    // 27.
    virtual void reserved27() = 0;

    // 28. Answer to takeScreenshot(): rows of width times four bytes R, G, B, A.
    virtual void OnScreenshot(unsigned char *rgba, int width, int height) = 0;

    // 29.
    virtual void reserved29(int first, int second, int third) = 0;

    // 30.
    virtual void reserved30(int first, int second, int third) = 0;

    // 31. A JSON object with facts about the play, at its end.
    virtual void OnStatistics(const char *json) = 0;

    // 32.
    virtual void reserved32(int value) = 0;

    // 33. Decoded sound; only while the int property "audio.pcmtap" is 1.
    virtual void OnAudioFrame(const VDPcmFrame *frame) = 0;

protected:
    ~IVDPlayCallback() = default;
};

} // namespace libvp
