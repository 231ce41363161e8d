// Renderer and output. One a process, made by IVDEngineCore::createPlayTool(); makes the plays.
//
// Every operation may be called from any thread and returns at once but where it says otherwise. Values are
// kept and hold for the running play and for all later ones. What the engine cannot do is logged once and
// answers false or 0.
#pragma once

#include "VDRecords.h"
#include "VDTypes.h"

#include <cstdint>

namespace libvp {

class IVDPlay;
class IVDPlayCallback;

class IVDPlayTool {
public:
    // 0. Slot of the destructor in the library's binary interface; never called by either side.
    virtual void destructorSlot() {}

    // 1. False: no renderer could be set up on this machine.
    virtual bool isValid() = 0;

    virtual int reserved2() { return 0; }

    // 3. The native window's new size in device pixels.
    virtual void resizeSurface(int width, int height) = 0;

    // 4. A play to open one source with. False and null when there is none.
    virtual bool createPlay(IVDPlayCallback *callback, int reserved, IVDPlay **play) = 0;

    // 5. Ends a play and clears the pointer. Waits for its threads. Null, and a pointer to null, are ignored.
    virtual void releasePlay(IVDPlay **play) = 0;

    virtual int reserved6() { return 0; }

    // 7. False when the name is unknown; the same for 8 and 10. "videoscreen.limitedrange": output range 16
    // to 235; "audiooutput.passthrough"; "subtitles.autoload": opens the subtitle files that
    // belong to a source, off at first, for the plays that begin later.
    virtual bool setBoolProperty(const char *name, bool value) = 0;

    // 8. "videoscreen.stereoscopicmode": 0 auto, 1 red and cyan, 2 checkerboard, 3 rows, 4 frame packing, 9
    // off; "audiooutput.channels": 0 stereo, 1 5.1, 2 7.1; "videoscreen.sdrvalue": luminance scale 0 to 100;
    // "audio.pcmtap": 1 delivers IVDPlayCallback::OnAudioFrame(); "play.step": 1 or -1 steps one frame;
    // "play.angle": angle of a disc, from 0.
    virtual bool setIntProperty(const char *name, int value) = 0;

    virtual int reserved9() { return 0; }

    // 10. "audiooutput.audiodevice", "audiooutput.passthroughdevice": device name; "subtitles.charset":
    // decimal Windows code page, "0" or empty detects it; "subtitles.outlinecolor": "#rrggbb";
    // "subtitles.folder": where subtitle files may lie beside the source's own folder, empty for none;
    // "disc.drive.X": device, image or folder behind the drive letter X, empty forgets it; "video.output":
    // list of output drivers.
    virtual bool setStringProperty(const char *name, const char *value) = 0;

    virtual int reserved11() { return 0; }

    // 12. 0 stereo, 1 5.1, 2 7.1; with pass-through on, a mask of VD_AudioCapability.
    virtual void setSpeakerLayout(int layout) = 0;

    // 13. False for an empty or unknown device.
    virtual bool switchAudioOutput(bool passThrough, const char *device) = 0;

    // 14. 1 when pass-through is on.
    virtual int passThrough() = 0;

    // 15. The engine's, valid until the next call from the same thread.
    virtual const char *currentAudioDevice() = 0;

    // 16. The engine's, made at the first call and kept. Waits for the sound system.
    virtual bool audioDevices(const VDAudioDeviceList **list) = 0;

    // 17. 0 off, 1 automatic, 2 on.
    virtual void setDeinterlaceMode(int mode) = 0;

    virtual int reserved18() { return 0; }
    virtual int reserved19() { return 0; }

    // 20. 1.0 is the whole picture; acts in VD_View_Custom, like 21 and 22.
    virtual void setZoomAmount(float zoom) = 0;

    // 21. Factor on the source's display aspect; 1.0 leaves it.
    virtual void setPixelRatio(float ratio) = 0;

    // 22. -2.0 to 2.0 picture heights, positive down.
    virtual void setVerticalShift(float shift) = 0;

    virtual int reserved23() { return 0; }

    // 24. VD_ViewMode.
    virtual void setViewMode(int mode) = 0;

    // 25.
    virtual int viewMode() = 0;

    virtual int reserved26() { return 0; }
    virtual int reserved27() { return 0; }

    // 28. 0 to 2.0, clamped; OnVolumeChanged answers.
    virtual void setVolume(float volume) = 0;

    // 29. OnMuteChanged answers.
    virtual void setMute(bool mute) = 0;

    // 30. 0 at set-up.
    virtual void setBootValue(int value) = 0;

    // 31. Positive delays the sound.
    virtual void setAudioDelay(float seconds) = 0;

    // 32. 0 to 60, decibels over ten: 60 adds 6 dB.
    virtual void setAudioAmplification(float amount) = 0;

    virtual int reserved33() { return 0; }

    // 34. Positive shows subtitles later.
    virtual void setSubtitleOffset(float seconds) = 0;

    virtual int reserved35() { return 0; }

    // 36.
    virtual void setSubtitleVisible(bool visible) = 0;

    // 37.
    virtual bool isSubtitleVisible() = 0;

    virtual int reserved38() { return 0; }
    virtual int reserved39() { return 0; }

    // 40. Empty or null: the default font.
    virtual void setSubtitleFont(const char *family) = 0;

    virtual int reserved41() { return 0; }

    // 42. Point size at a picture height of 288 lines; 0: default.
    virtual void setSubtitleSize(int size) = 0;

    virtual int reserved43() { return 0; }

    // 44. 1 bottom, 2 top.
    virtual void setSubtitlePosition(int position, int reserved) = 0;

    virtual int reserved45() { return 0; }
    virtual int reserved46() { return 0; }
    virtual int reserved47() { return 0; }

    // 48. "#rrggbb".
    virtual void setSubtitleColor(const char *color) = 0;

    virtual int reserved49() { return 0; }

    // 50.
    virtual void setSubtitleBold(bool bold) = 0;

    virtual int reserved51() { return 0; }

    // 52.
    virtual void setSubtitleItalic(bool italic) = 0;

    // 53.
    virtual void setSubtitleOutline(bool outline) = 0;

    // 54. 0 to 100, 50 leaves the picture; the same for 55 and 57.
    virtual void setBrightness(float value) = 0;

    // 55.
    virtual void setSaturation(float value) = 0;

    virtual int reserved56() { return 0; }

    // 57.
    virtual void setContrast(float value) = 0;

    virtual int reserved58() { return 0; }

    // 59. 0 to 3, clockwise.
    virtual void setRotation(int quarterTurns) = 0;

    // 60. Two bits: 1 horizontal, 2 vertical.
    virtual int flipState() = 0;

    // 61. 0 to 3.
    virtual void setFlipState(int state) = 0;

    // 62. The same as state 0.
    virtual void resetFlip() = 0;

    virtual int reserved63() { return 0; }
    virtual int reserved64() { return 0; }
    virtual int reserved65() { return 0; }

    // 66. 0 detect, 1 side by side, 2 top and bottom.
    virtual void set3DInputLayout(int layout) = 0;

    virtual int reserved67() { return 0; }

    // 68. The style above replaces that of ASS subtitles.
    virtual void setSubtitleOverride(bool override) = 0;

    // 69.
    virtual void set3DEngine(bool on) = 0;

    virtual int reserved70() { return 0; }
    virtual int reserved71() { return 0; }
    virtual int reserved72() { return 0; }

    // 73. 1 at set-up.
    virtual void setUpFlag73(int value) = 0;

    // 74. 1 at set-up.
    virtual void setUpFlag74(int value) = 0;

    virtual int reserved75() { return 0; }
    virtual int reserved76() { return 0; }

    // 77. OnScreenshot answers. Mode 0: the source's pixels; 1: with subtitles. A width and height above 0
    // scale the picture into them. False without a frame.
    virtual bool takeScreenshot(int mode, int width, int height) = 0;

    virtual int reserved78() { return 0; }

    // 79. Display aspect of the source; 0 without one.
    virtual double displayAspect() = 0;

    // 80.
    virtual void enableHardwareDecoding(bool on) = 0;

    virtual int reserved81() { return 0; }
    virtual int reserved82() { return 0; }
    virtual int reserved83() { return 0; }
    virtual int reserved84() { return 0; }
    virtual int reserved85() { return 0; }
    virtual int reserved86() { return 0; }
    virtual int reserved87() { return 0; }
    virtual int reserved88() { return 0; }
    virtual int reserved89() { return 0; }

    // 90. 1 to 8 on DVDs; 1 A, 2 B, 3 C on Blu-rays.
    virtual void setRegion(int region) = 0;

    virtual int reserved91() { return 0; }
    virtual int reserved92() { return 0; }
    virtual int reserved93() { return 0; }
    virtual int reserved94() { return 0; }
    virtual int reserved95() { return 0; }
    virtual int reserved96() { return 0; }

    // 97.
    virtual void showInformationOverlay(bool show) = 0;

    // 98. A mouse or key message over the surface, for disc menus; x and y in device pixels of the surface.
    virtual void forwardWindowMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, int x,
                                      int y) = 0;

    // 99. Position of the surface on the screen.
    virtual void forwardWindowMove(int x, int y) = 0;

    // 100. Off: HDR goes out as it is where the display takes it.
    virtual void enableToneMap(bool on) = 0;

    virtual int reserved101() { return 0; }

    // 102. Type, volume name and size of a disc. Waits for the drive. False when there is no such drive.
    virtual bool discDisplayInfo(const char *drive, VDDiscDisplayInfo *info) = 0;

    // 103. Waits for the drive.
    virtual bool eject(char drive) = 0;

    virtual int reserved104() { return 0; }

    // 105. 0 no drive, 1 no disc, 2 disc.
    virtual int discState(char drive) = 0;

    // 106. 0 left view first, 1 right view first.
    virtual void set3DParallax(int direction) = 0;

    // 107.
    virtual bool threeDCapabilities(VD3DCapabilities *capabilities) = 0;

    // 108. Windows language identifier, for disc menus.
    virtual void setUiLanguage(int code) = 0;

    // 109. Type 0 none, 1 HTTP, 2 SOCKS5. For network sources.
    virtual void setProxy(int type, const char *host, int port, const char *user, const char *password) = 0;

    virtual int reserved110() { return 0; }

    // 111. 0 automatic, 1 always to SDR.
    virtual void setHDRMode(int mode) = 0;

    // 112. Tone curve: 0 Simple, 1 Hable, 2 Filmic, 3 Aces, others automatic.
    virtual void setSDRMode(int mode) = 0;

    virtual int reserved113() { return 0; }
    virtual int reserved114() { return 0; }
    virtual int reserved115() { return 0; }

    // 116. Language code; null or empty: the source's own choice. The same for 117.
    virtual void setPreferredAudioLanguage(const char *language) = 0;

    // 117. "close": no subtitles.
    virtual void setPreferredSubtitleLanguage(const char *language) = 0;

    // 118. Null or empty: none. False when the file cannot be read; VD_Error_ShaderInvalid when it does not
    // compile.
    virtual bool setCustomShader(const char *path) = 0;

    // 119. The engine's, valid until the next call from the same thread.
    virtual const char *customShader() = 0;

protected:
    ~IVDPlayTool() = default;
};

} // namespace libvp
