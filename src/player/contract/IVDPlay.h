// One open source, made by IVDPlayTool::createPlay() and ended by releasePlay().
//
// Every operation may be called from any thread and returns at once but where it says otherwise. Counts are
// -1 and indexes are -1 while nothing is open.
#pragma once

#include "VDRecords.h"

namespace libvp {

class IVDFileItem;
class IVDPlayOptions;

class IVDPlay {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    virtual int reserved1() { return 0; }
    virtual int reserved2() { return 0; }
    virtual int reserved3() { return 0; }
    virtual int reserved4() { return 0; }

    // 5. Begins to open; notifications tell the rest. False: refused at once (no path).
    virtual bool open(IVDFileItem *item, IVDPlayOptions *options, int reserved) = 0;

    // 6. Stops. Waits until the last notification has returned; nothing arrives afterwards. Must not be
    // called from a notification.
    virtual void close() = 0;

    virtual int reserved7() { return 0; }
    virtual int reserved8() { return 0; }

    // 9. Track record from 0, null outside the list. The engine's, valid until the next call from the same
    // thread.
    virtual const VDAudioInfo *getAudioInfo(int index) = 0;

    virtual int reserved10() { return 0; }

    // 11. Like 9.
    virtual const VDSubtitleInfo *getSubtitleInfo(int index) = 0;

    virtual int reserved12() { return 0; }

    // 13. OnPlayBackPaused or OnPlayBackResumed answers.
    virtual void togglePause() = 0;

    // 14. True from OnPlayBackStarted to the end, paused or not.
    virtual bool isPlaying() = 0;

    // 15.
    virtual bool isPaused() = 0;

    virtual int reserved16() { return 0; }
    virtual int reserved17() { return 0; }

    // 18. 0 when unknown.
    virtual double totalSeconds() = 0;

    // 19.
    virtual double currentSeconds() = 0;

    // 20. Mode 1 is exact, 0 goes to a key frame. OnSeekState answers; a seek that comes while one runs
    // replaces the one that waits.
    virtual void seek(double seconds, int mode) = 0;

    virtual int reserved21() { return 0; }

    // 22.
    virtual int audioCount() = 0;

    // 23.
    virtual int audioTrack() = 0;

    // 24. OnAudioInfo answers.
    virtual void setAudioTrack(int index) = 0;

    // 25.
    virtual int subtitleCount(int reserved) = 0;

    // 26. -1 when none shows.
    virtual int subtitleTrack() = 0;

    // 27. OnSubtitleInfo answers; VD_NoSubtitle shows none.
    virtual void setSubtitleTrack(int index) = 0;

    virtual int reserved28() { return 0; }

    // 29. 0 to 17 for -32, -16, -8, -4, -2, 0, 0.25, 0.5, 0.75, 1, 1.25, 1.5, 1.75, 2, 4, 8, 16, 32 times.
    // OnPlayBackSpeedChanged answers.
    virtual void setSpeedIndex(int index) = 0;

    // 30.
    virtual float speed() = 0;

    // 31.
    virtual int chapterCount() = 0;

    // 32. From 1; 0 without chapters.
    virtual int chapter() = 0;

    virtual int reserved33() { return 0; }

    // 34. 0 without titles.
    virtual int titleCount() = 0;

    virtual int reserved35() { return 0; }

    // 36. From 1; outside the list nothing happens.
    virtual void goToChapter(int chapter) = 0;

    // 37. VD_MenuCommand; ignored without a menu.
    virtual void menuCommand(int command, float value, int reserved) = 0;

    virtual int reserved38() { return 0; }

    // 39.
    virtual bool hasDiscMenu() = 0;

    virtual int reserved40() { return 0; }
    virtual int reserved41() { return 0; }
    virtual int reserved42() { return 0; }
    virtual int reserved43() { return 0; }
    virtual int reserved44() { return 0; }
    virtual int reserved45() { return 0; }
    virtual int reserved46() { return 0; }
    virtual int reserved47() { return 0; }
    virtual int reserved48() { return 0; }
    virtual int reserved49() { return 0; }
    virtual int reserved50() { return 0; }
    virtual int reserved51() { return 0; }
    virtual int reserved52() { return 0; }

    // 53. Loads a subtitle file; its index, -1 when it is none. Waits for the file.
    virtual int addSubtitle(const char *path) = 0;

    virtual int reserved54() { return 0; }
    virtual int reserved55() { return 0; }
    virtual int reserved56() { return 0; }
    virtual int reserved57() { return 0; }
    virtual int reserved58() { return 0; }
    virtual int reserved59() { return 0; }
    virtual int reserved60() { return 0; }
    virtual int reserved61() { return 0; }
    virtual int reserved62() { return 0; }
    virtual int reserved63() { return 0; }
    virtual int reserved64() { return 0; }
    virtual int reserved65() { return 0; }
    virtual int reserved66() { return 0; }
    virtual int reserved67() { return 0; }
    virtual int reserved68() { return 0; }
    virtual int reserved69() { return 0; }
    virtual int reserved70() { return 0; }
    virtual int reserved71() { return 0; }
    virtual int reserved72() { return 0; }
    virtual int reserved73() { return 0; }
    virtual int reserved74() { return 0; }
    virtual int reserved75() { return 0; }
    virtual int reserved76() { return 0; }

    // 77.
    virtual void setAuthorInfo(int value) = 0;

    // 78. Shows the next frame and stays paused.
    virtual void toggleStep() = 0;

    // 79. VD_Statistic.
    virtual int statistic(int key) = 0;

protected:
    ~IVDPlay() = default;
};

} // namespace libvp
