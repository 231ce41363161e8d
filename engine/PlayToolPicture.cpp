// Picture of the output.
#include "PlayTool.h"

#include "LocalFile.h"
#include "NativePath.h"
#include "ToolArguments.h"

namespace {

using namespace libvp;
using ToolArguments::finiteOr;
using ToolArguments::textOf;

constexpr std::int64_t largestShader = 4 << 20;

} // namespace

void PlayTool::setDeinterlaceMode(int mode)
{
    prefer([mode](PlayPreferences &preferences) { preferences.deinterlace = mode; });
}

void PlayTool::setZoomAmount(float zoom)
{
    prefer(
        [zoom](PlayPreferences &preferences) { preferences.zoom = static_cast<double>(finiteOr(zoom, 1)); });
}

void PlayTool::setPixelRatio(float ratio)
{
    const double wanted = ratio > 0 ? static_cast<double>(finiteOr(ratio, 1)) : 1.0;
    prefer([wanted](PlayPreferences &preferences) { preferences.pixelRatio = wanted; });
}

void PlayTool::setVerticalShift(float shift)
{
    prefer([shift](PlayPreferences &preferences) {
        preferences.verticalShift = static_cast<double>(finiteOr(shift, 0));
    });
}

void PlayTool::setViewMode(int mode)
{
    if (mode < VD_View_Default || mode > VD_View_2_35)
        return;
    prefer([mode](PlayPreferences &preferences) { preferences.viewMode = mode; });
}

int PlayTool::viewMode()
{
    return m_settings.preferences().viewMode;
}

void PlayTool::setBrightness(float value)
{
    set("brightness", PictureOptions::equalizer(value));
}

void PlayTool::setSaturation(float value)
{
    set("saturation", PictureOptions::equalizer(value));
}

void PlayTool::setContrast(float value)
{
    set("contrast", PictureOptions::equalizer(value));
}

void PlayTool::setRotation(int quarterTurns)
{
    prefer([quarterTurns](PlayPreferences &preferences) { preferences.rotation = quarterTurns & 3; });
}

int PlayTool::flipState()
{
    return m_settings.preferences().flip;
}

void PlayTool::setFlipState(int state)
{
    prefer([state](PlayPreferences &preferences) { preferences.flip = state & 3; });
}

void PlayTool::resetFlip()
{
    setFlipState(0);
}

void PlayTool::enableHardwareDecoding(bool on)
{
    prefer([on](PlayPreferences &preferences) { preferences.hardwareDecoding = on; });
}

void PlayTool::enableToneMap(bool on)
{
    prefer([on](PlayPreferences &preferences) { preferences.toneMap = on; });
}

void PlayTool::setHDRMode(int mode)
{
    prefer([mode](PlayPreferences &preferences) { preferences.hdrMode = mode; });
}

void PlayTool::setSDRMode(int mode)
{
    prefer([mode](PlayPreferences &preferences) { preferences.toneCurve = mode; });
}

void PlayTool::set3DInputLayout(int layout)
{
    prefer([layout](PlayPreferences &preferences) { preferences.stereoInput = layout; });
}

void PlayTool::set3DEngine(bool on)
{
    prefer([on](PlayPreferences &preferences) { preferences.stereoEngine = on; });
}

void PlayTool::set3DParallax(int direction)
{
    prefer([direction](PlayPreferences &preferences) { preferences.rightViewFirst = direction == 1; });
}

bool PlayTool::threeDCapabilities(VD3DCapabilities *capabilities)
{
    if (!capabilities)
        return false;
    *capabilities = {};
    capabilities->words[0] = PictureOptions::stereoModes();
    return true;
}

void PlayTool::showInformationOverlay(bool show)
{
    prefer([show](PlayPreferences &preferences) { preferences.informationOverlay = show; });
}

bool PlayTool::takeScreenshot(int mode, int width, int height)
{
    const auto session = openSession();
    return session && session->takeScreenshot(mode == 1, width, height);
}

double PlayTool::displayAspect()
{
    const auto session = openSession();
    return session ? session->facts().aspect : 0.0;
}

bool PlayTool::setCustomShader(const char *path)
{
    const std::string wanted = textOf(path);
    std::string absolute;
    if (!wanted.empty()) {
        LocalFile file;
        if (!file.open(wanted) || file.size() == 0 || file.size() > largestShader) {
            engineLog("[Engine] the custom shader cannot be read: %s", wanted.c_str());
            return false;
        }
        std::error_code error;
        absolute = std::filesystem::absolute(nativePath(wanted), error).u8string();
    }
    prefer([&absolute](PlayPreferences &preferences) { preferences.customShader = absolute; });
    std::string outputs;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        outputs = m_videoOutputs;
    }
    setVideoOutputs(outputs);
    return true;
}

const char *PlayTool::customShader()
{
    thread_local std::string path;
    path = m_settings.preferences().customShader;
    return path.c_str();
}
