// The engine library: set-up, disc backups, pictures of sources. One a process, made by CreateVDPlayer().
//
// Every operation may be called from any thread. Texts are UTF-8. A drive is a letter, or the path of a
// device, an image or a disc folder.
#pragma once

#include "VDRecords.h"
#include "VDTypes.h"

namespace libvp {

class IVDPlayTool;
class IVDPlaytoolCallback;
class IVDPlayToolConfig;

class IVDEngineCore {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    virtual int reserved1() { return 0; }

    // 2. Once, right after creation; reads IVDPlayerConfig. False: the library cannot work here.
    virtual bool initialise() = 0;

    // 3. The output. Never null; isValid() tells whether it works. The engine's, until ReleaseVDPlayer().
    virtual IVDPlayTool *createPlayTool(int reserved, IVDPlayToolConfig *config,
                                        IVDPlaytoolCallback *callback) = 0;

    virtual int reserved4() { return 0; }
    virtual int reserved5() { return 0; }
    virtual int reserved6() { return 0; }

    // 7. Reads the titles of a disc, image or folder: up to capacity records into titles (the caller's),
    // their whole number, and the number of the main title. Waits for the disc. False when it is no disc.
    virtual bool prepareDisc(const char *path, int itemType, VDDiscTitle *titles, int capacity,
                             int *titleCount, int *mainTitle) = 0;

    // 8. VD_SourceForm of a path, VD_Source_File for what is no disc. Waits for the disc.
    virtual int sourceForm(const char *path) = 0;

    // 9. Opens a source for pictures of at most width by height pixels, ratio kept. Waits for the file.
    // Handle from 1, 0 when it cannot be opened or has no video.
    virtual int openThumbnailSession(const char *path, int itemType, int titleNumber, int width, int height,
                                     int startMs, int endMs, int flags) = 0;

    // 10. An unknown handle is ignored. A grab that is under way ends early.
    virtual void closeThumbnailSession(int handle) = 0;

    // 11. The key frame at or before a position, as RGBA; flag bit 0 asks for the exact frame. Waits for the
    // decoder. The picture goes back through releasePicture(). False and null when there is none.
    virtual bool grabThumbnail(int handle, int positionMs, int flags, const VDPicture **picture) = 0;

    // 12. Null is ignored.
    virtual void releasePicture(const VDPicture *picture) = 0;

    // 13. A representative picture of a source. The request is a JSON object: "url" (path), "width", "height"
    // (pixels, at most), "sourcetype" (0 file, 1 folder). Cover art is preferred where there is no video.
    // Waits for the file. Null on failure; else goes back through releasePicture().
    virtual const VDPicture *grabPicture(const char *requestJson) = 0;

    // 14. Copies a disc to an ISO image at target, on an engine thread. False when source is no disc, one of
    // that drive runs, or target cannot be written. No partial file is left by a backup that fails or is
    // stopped.
    virtual bool startBackup(const char *source, const char *target, int option) = 0;

    // 15. Ends a backup and forgets it. Waits until its file is gone.
    virtual void stopBackup(const char *drive) = 0;

    // 16. 0 to 1.0; -1 without one. At once.
    virtual double backupProgress(const char *drive) = 0;

    // 17. True once the image is complete. At once.
    virtual bool isBackupFinished(const char *drive) = 0;

    // 18. True once it ended with an error. At once.
    virtual bool isBackupFailed(const char *drive) = 0;

protected:
    ~IVDEngineCore() = default;
};

} // namespace libvp
