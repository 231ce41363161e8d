#include "FakeTool.h"

#include "FakeState.h"

#include <string>

template<class... Arguments>
void FakeTool::call(const char *operation, const Arguments &...arguments)
{
    m_state.script.called(std::string("IVDPlayTool::") + operation, arguments...);
}

int FakeTool::answered(const char *operation, double otherwise) const
{
    return static_cast<int>(m_state.script.number(std::string("IVDPlayTool::") + operation, otherwise));
}

FakeTool::FakeTool(FakeState &state, libvp::IVDPlaytoolCallback *callback)
    : m_state(state)
    , m_callback(callback)
{
}

bool FakeTool::isValid()
{
    call("isValid");
    return answered("isValid", 1) != 0;
}

void FakeTool::resizeSurface(int width, int height)
{
    call("resizeSurface", width, height);
}

bool FakeTool::createPlay(libvp::IVDPlayCallback *callback, int reserved, libvp::IVDPlay **play)
{
    call("createPlay", reserved);
    if (!play)
        return false;
    *play = answered("createPlay", 1) != 0 ? m_state.createPlay(callback) : nullptr;
    return *play != nullptr;
}

void FakeTool::releasePlay(libvp::IVDPlay **play)
{
    call("releasePlay");
    if (!play || !*play)
        return;
    m_state.destroyPlay(*play);
    *play = nullptr;
}

bool FakeTool::setBoolProperty(const char *name, bool value)
{
    call("setBoolProperty", name, value);
    return answered("setBoolProperty", 1) != 0;
}

bool FakeTool::setIntProperty(const char *name, int value)
{
    call("setIntProperty", name, value);
    return answered("setIntProperty", 1) != 0;
}

bool FakeTool::setStringProperty(const char *name, const char *value)
{
    call("setStringProperty", name, value);
    return answered("setStringProperty", 1) != 0;
}

void FakeTool::setSpeakerLayout(int layout)
{
    call("setSpeakerLayout", layout);
}

bool FakeTool::switchAudioOutput(bool passThrough, const char *device)
{
    call("switchAudioOutput", passThrough, device);
    m_state.script.answer("IVDPlayTool::passThrough", passThrough ? 1 : 0);
    return answered("switchAudioOutput", 1) != 0;
}

int FakeTool::passThrough()
{
    call("passThrough");
    return answered("passThrough", 0);
}

const char *FakeTool::currentAudioDevice()
{
    call("currentAudioDevice");
    return m_state.script.text("IVDPlayTool::currentAudioDevice", "");
}

bool FakeTool::audioDevices(const libvp::VDAudioDeviceList **list)
{
    call("audioDevices");
    if (list)
        *list = m_state.audioDevices();
    return answered("audioDevices", 1) != 0;
}

void FakeTool::setDeinterlaceMode(int mode)
{
    call("setDeinterlaceMode", mode);
}

void FakeTool::setZoomAmount(float zoom)
{
    call("setZoomAmount", zoom);
}

void FakeTool::setPixelRatio(float ratio)
{
    call("setPixelRatio", ratio);
}

void FakeTool::setVerticalShift(float shift)
{
    call("setVerticalShift", shift);
}

void FakeTool::setViewMode(int mode)
{
    call("setViewMode", mode);
    m_state.script.answer("IVDPlayTool::viewMode", mode);
}

int FakeTool::viewMode()
{
    call("viewMode");
    return answered("viewMode", 0);
}

void FakeTool::setVolume(float volume)
{
    call("setVolume", volume);
    if (m_state.isAutomatic())
        m_state.raiseTool([volume](libvp::IVDPlaytoolCallback &told) { told.OnVolumeChanged(volume); });
}

void FakeTool::setMute(bool mute)
{
    call("setMute", mute);
    if (m_state.isAutomatic())
        m_state.raiseTool([mute](libvp::IVDPlaytoolCallback &told) { told.OnMuteChanged(mute); });
}

void FakeTool::setBootValue(int value)
{
    call("setBootValue", value);
}

void FakeTool::setAudioDelay(float seconds)
{
    call("setAudioDelay", seconds);
}

void FakeTool::setAudioAmplification(float amount)
{
    call("setAudioAmplification", amount);
}

void FakeTool::setSubtitleOffset(float seconds)
{
    call("setSubtitleOffset", seconds);
}

void FakeTool::setSubtitleVisible(bool visible)
{
    call("setSubtitleVisible", visible);
    m_state.script.answer("IVDPlayTool::isSubtitleVisible", visible ? 1 : 0);
}

bool FakeTool::isSubtitleVisible()
{
    call("isSubtitleVisible");
    return answered("isSubtitleVisible", 1) != 0;
}

void FakeTool::setSubtitleFont(const char *family)
{
    call("setSubtitleFont", family);
}

void FakeTool::setSubtitleSize(int size)
{
    call("setSubtitleSize", size);
}

void FakeTool::setSubtitlePosition(int position, int reserved)
{
    call("setSubtitlePosition", position, reserved);
}

void FakeTool::setSubtitleColor(const char *color)
{
    call("setSubtitleColor", color);
}

void FakeTool::setSubtitleBold(bool bold)
{
    call("setSubtitleBold", bold);
}

void FakeTool::setSubtitleItalic(bool italic)
{
    call("setSubtitleItalic", italic);
}

void FakeTool::setSubtitleOutline(bool outline)
{
    call("setSubtitleOutline", outline);
}

void FakeTool::setBrightness(float value)
{
    call("setBrightness", value);
}

void FakeTool::setSaturation(float value)
{
    call("setSaturation", value);
}

void FakeTool::setContrast(float value)
{
    call("setContrast", value);
}

void FakeTool::setRotation(int quarterTurns)
{
    call("setRotation", quarterTurns);
}

int FakeTool::flipState()
{
    call("flipState");
    return answered("flipState", 0);
}

void FakeTool::setFlipState(int state)
{
    call("setFlipState", state);
    m_state.script.answer("IVDPlayTool::flipState", state);
}

void FakeTool::resetFlip()
{
    call("resetFlip");
    m_state.script.answer("IVDPlayTool::flipState", 0);
}

void FakeTool::set3DInputLayout(int layout)
{
    call("set3DInputLayout", layout);
}

void FakeTool::setSubtitleOverride(bool override)
{
    call("setSubtitleOverride", override);
}

void FakeTool::set3DEngine(bool on)
{
    call("set3DEngine", on);
}

void FakeTool::setUpFlag73(int value)
{
    call("setUpFlag73", value);
}

void FakeTool::setUpFlag74(int value)
{
    call("setUpFlag74", value);
}

bool FakeTool::takeScreenshot(int mode, int width, int height)
{
    call("takeScreenshot", mode, width, height);
    return answered("takeScreenshot", 1) != 0;
}

double FakeTool::displayAspect()
{
    call("displayAspect");
    return m_state.script.number("IVDPlayTool::displayAspect", 0);
}

void FakeTool::enableHardwareDecoding(bool on)
{
    call("enableHardwareDecoding", on);
}

void FakeTool::setRegion(int region)
{
    call("setRegion", region);
}

void FakeTool::showInformationOverlay(bool show)
{
    call("showInformationOverlay", show);
}

void FakeTool::forwardWindowMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam, int x,
                                    int y)
{
    call("forwardWindowMessage", message, wParam, lParam, x, y);
}

void FakeTool::forwardWindowMove(int x, int y)
{
    call("forwardWindowMove", x, y);
}

void FakeTool::enableToneMap(bool on)
{
    call("enableToneMap", on);
}

bool FakeTool::discDisplayInfo(const char *drive, libvp::VDDiscDisplayInfo *info)
{
    call("discDisplayInfo", drive);
    if (info)
        *info = m_state.discInfo();
    return answered("discDisplayInfo", 1) != 0;
}

bool FakeTool::eject(char drive)
{
    call("eject", drive);
    return answered("eject", 1) != 0;
}

int FakeTool::discState(char drive)
{
    call("discState", drive);
    return answered("discState", 0);
}

void FakeTool::set3DParallax(int direction)
{
    call("set3DParallax", direction);
}

bool FakeTool::threeDCapabilities(libvp::VD3DCapabilities *capabilities)
{
    call("threeDCapabilities");
    if (capabilities)
        *capabilities = {};
    return answered("threeDCapabilities", 1) != 0;
}

void FakeTool::setUiLanguage(int code)
{
    call("setUiLanguage", code);
}

void FakeTool::setProxy(int type, const char *host, int port, const char *user, const char *password)
{
    call("setProxy", type, host, port, user, password);
}

void FakeTool::setHDRMode(int mode)
{
    call("setHDRMode", mode);
}

void FakeTool::setSDRMode(int mode)
{
    call("setSDRMode", mode);
}

void FakeTool::setPreferredAudioLanguage(const char *language)
{
    call("setPreferredAudioLanguage", language);
}

void FakeTool::setPreferredSubtitleLanguage(const char *language)
{
    call("setPreferredSubtitleLanguage", language);
}

bool FakeTool::setCustomShader(const char *path)
{
    call("setCustomShader", path);
    return answered("setCustomShader", 1) != 0;
}

const char *FakeTool::customShader()
{
    call("customShader");
    return m_state.script.text("IVDPlayTool::customShader", "");
}
