// How the running picture is shown.
#include "QPlayer.h"

#include "EngineProperties.h"
#include "ViewModes.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QDebug>

namespace {

// Bits of the engine's flip state.
constexpr int flippedHorizontally = 1;
constexpr int flippedVertically = 2;

enum FlipKind {
    FlipOff = 0,
    TurnRight = 1,
    TurnLeft = 2,
    TurnOver = 3,
    FlipHorizontally = 4,
    FlipVertically = 5
};

} // namespace

void QPlayer::resizeSurface(int width, int height)
{
    if (width <= 0 || height <= 0)
        return;
    m_surfaceWidth = width;
    m_surfaceHeight = height;
    onTool([=](libvp::IVDPlayTool &tool) { tool.resizeSurface(width, height); });
}

void QPlayer::forwardWindowMessage(unsigned message, quintptr wParam, qintptr lParam, int x, int y)
{
    // The window tells of every mouse move: no set-up from here.
    if (auto tool = m_tool.use())
        tool->forwardWindowMessage(message, wParam, lParam, x, y);
}

void QPlayer::forwardWindowMove(int x, int y)
{
    if (auto tool = m_tool.use())
        tool->forwardWindowMove(x, y);
}

void QPlayer::setViewMode(int mode)
{
    const std::optional<double> ratio = ViewModes::fixedRatio(mode);
    if (!ratio && !ViewModes::isPreset(mode)) {
        qInfo() << "[Engine] no such view mode:" << mode;
        return;
    }
    m_viewMode = mode;
    onTool([mode, ratio](libvp::IVDPlayTool &tool) {
        if (!ratio) {
            tool.setViewMode(mode);
            return;
        }
        tool.setViewMode(libvp::VD_View_Custom);
        // Without a source there is nothing to divide by.
        const double aspect = tool.displayAspect();
        if (aspect > 0)
            tool.setPixelRatio(static_cast<float>(*ratio / aspect));
    });
}

void QPlayer::setZoomAmount(float zoom)
{
    onTool([zoom](libvp::IVDPlayTool &tool) { tool.setZoomAmount(zoom); });
}

void QPlayer::setVerticalShift(float shift)
{
    onTool([shift](libvp::IVDPlayTool &tool) { tool.setVerticalShift(shift); });
}

void QPlayer::setPixelRatio(float ratio)
{
    onTool([ratio](libvp::IVDPlayTool &tool) { tool.setPixelRatio(ratio); });
}

void QPlayer::flip(int kind)
{
    const auto toggle = [](libvp::IVDPlayTool &tool, int bit) {
        tool.setFlipState((tool.flipState() & (flippedHorizontally | flippedVertically)) ^ bit);
        tool.setRotation(0);
    };
    onTool([kind, toggle](libvp::IVDPlayTool &tool) {
        switch (kind) {
        case FlipOff:
            tool.resetFlip();
            tool.setRotation(0);
            break;
        case TurnRight:
            tool.setRotation(1);
            break;
        case TurnLeft:
            tool.setRotation(3);
            break;
        case TurnOver:
            tool.setRotation(2);
            break;
        case FlipHorizontally:
            toggle(tool, flippedHorizontally);
            break;
        case FlipVertically:
            toggle(tool, flippedVertically);
            break;
        default:
            break;
        }
    });
}

void QPlayer::setRotation(int degrees)
{
    const int turns = degrees == 90 || degrees == 180 || degrees == 270 ? degrees / 90 : 0;
    onTool([turns](libvp::IVDPlayTool &tool) { tool.setRotation(turns); });
}

void QPlayer::setBrightness(float value)
{
    onTool([value](libvp::IVDPlayTool &tool) { tool.setBrightness(value); });
}

void QPlayer::setContrast(float value)
{
    onTool([value](libvp::IVDPlayTool &tool) { tool.setContrast(value); });
}

void QPlayer::setSaturation(float value)
{
    onTool([value](libvp::IVDPlayTool &tool) { tool.setSaturation(value); });
}

void QPlayer::setDeinterlaceMode(int mode)
{
    m_deinterlaceMode = mode;
    onTool([mode](libvp::IVDPlayTool &tool) { tool.setDeinterlaceMode(mode); });
}

bool QPlayer::takeScreenshot(int mode, int width, int height)
{
    auto tool = m_tool.use();
    return tool && tool->takeScreenshot(mode, width, height);
}

double QPlayer::displayAspect()
{
    return fromTool(0.0, [](libvp::IVDPlayTool &tool) { return tool.displayAspect(); });
}

void QPlayer::showInformationOverlay(bool show)
{
    onTool([show](libvp::IVDPlayTool &tool) { tool.showInformationOverlay(show); });
}

void QPlayer::set3DEngine(bool on)
{
    bool done = false;
    onTool([on, &done](libvp::IVDPlayTool &tool) {
        tool.set3DEngine(on);
        done = true;
    });
    if (done && m_threeDEnabled.exchange(on) != on)
        emit sig_3DEngineStateChanged(on);
}

void QPlayer::set3DMode(int mode)
{
    setIntProperty(EngineProperties::StereoscopicMode, mode);
}

void QPlayer::set3DInputLayout(int layout)
{
    onTool([layout](libvp::IVDPlayTool &tool) { tool.set3DInputLayout(layout); });
}

void QPlayer::set3DParallax(int direction)
{
    onTool([direction](libvp::IVDPlayTool &tool) { tool.set3DParallax(direction); });
}

bool QPlayer::threeDCapabilities(libvp::VD3DCapabilities *capabilities)
{
    if (!capabilities)
        return false;
    return fromTool(
        false, [capabilities](libvp::IVDPlayTool &tool) { return tool.threeDCapabilities(capabilities); });
}

void QPlayer::setup3D()
{
    const bool engineOn = m_settings->valueOr<bool>(SettingsKeys::PC_3DEngine, true);
    const bool shown = m_settings->valueOr<bool>(SettingsKeys::PC_PlayIn3D, true)
                       || m_settings->valueOr<bool>(SettingsKeys::PC_ConvertTo3D, false);
    set3DEngine(engineOn);
    if (!engineOn || !shown) {
        set3DMode(EngineProperties::StereoscopicOff);
        return;
    }
    set3DInputLayout(m_settings->valueOr<int>(SettingsKeys::PC_3DSourceType, 0));
    set3DParallax(m_settings->valueOr<int>(SettingsKeys::PC_MoveDirection, 0));
    set3DMode(m_settings->valueOr<int>(SettingsKeys::PC_3DMode, 0));
}
