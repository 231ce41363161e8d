// Remote control of the scripted engine: what it answers, where it waits, what it tells, and which calls it
// got.
//
// One a process, found through the library's symbol fakeEngine(). It outlives the engine objects that
// CreateVDPlayer() makes, so a test can script the very first call. All operations may be called from any
// thread. Calls are named "IVDPlay::seek(12.5, 1)": interface, operation, arguments; texts stand bare,
// booleans as true and false, null as null.
#pragma once

#include "contract/Orbix.h"

#include <functional>
#include <string>
#include <vector>

class FakeEngine {
public:
    // Forgets calls, answers and holds. The engine objects, if any, stay.
    virtual void reset() = 0;

    // ---- script: by operation, for instance "IVDPlayTool::isValid"
    // Answers are numbers (false is 0) or texts. An operation without one answers as a healthy engine does.
    virtual void answer(const std::string &operation, double value) = 0;
    virtual void answerText(const std::string &operation, const std::string &text) = 0;

    // A call of the operation waits until released. The call is in calls() while it waits.
    virtual void hold(const std::string &operation) = 0;
    virtual void release(const std::string &operation) = 0;
    // False when no call got there in time.
    [[nodiscard]] virtual bool waitHeld(const std::string &operation, int milliseconds = 10000) = 0;

    // On: the play behaves by itself. open() tells of a start, the pause, speed, volume and mute operations
    // of their change, close() of a stop.
    virtual void setAutomatic(bool on) = 0;

    // ---- records that the engine hands out
    virtual void setAudioTracks(std::vector<libvp::VDAudioInfo> tracks) = 0;
    virtual void setSubtitleTracks(std::vector<libvp::VDSubtitleInfo> tracks) = 0;
    virtual void setAudioDevices(std::vector<libvp::VDAudioDevice> devices) = 0;
    virtual void setDiscTitles(std::vector<libvp::VDDiscTitle> titles, int mainTitle) = 0;
    virtual void setDiscInfo(const libvp::VDDiscDisplayInfo &info) = 0;
    // What grabThumbnail() and grabPicture() give. Overwritten when it is released.
    virtual void setPicture(std::vector<unsigned char> bytes, int width, int height, int format) = 0;
    virtual void setStatistic(int key, int value) = 0;

    // ---- calls
    [[nodiscard]] virtual std::vector<std::string> calls() const = 0;
    virtual void clearCalls() = 0;
    // Waits until a call that begins with the text has come.
    [[nodiscard]] virtual bool waitCall(const std::string &beginning, int milliseconds = 10000) = 0;

    // ---- notifications, in order on the engine's own thread
    // False without an open play. The function runs unless the play is closed before its turn.
    virtual bool raise(std::function<void(libvp::IVDPlayCallback &)> notification) = 0;
    virtual bool raiseOrbix(std::function<void(libvp::IVDOrbixCallback &)> notification) = 0;
    virtual bool raiseTool(std::function<void(libvp::IVDPlaytoolCallback &)> notification) = 0;
    // Waits until all notifications raised so far have returned or were dropped. False when one still runs.
    [[nodiscard]] virtual bool waitNotified(int milliseconds = 10000) = 0;

    // ---- objects, null while they do not exist
    [[nodiscard]] virtual libvp::IVDEngineCore *core() = 0;
    [[nodiscard]] virtual libvp::IVDPlayTool *tool() = 0;
    [[nodiscard]] virtual libvp::IVDPlay *play() = 0;
    [[nodiscard]] virtual libvp::IVDPlayerConfig *playerConfig() = 0;
    [[nodiscard]] virtual libvp::IVDPlayToolConfig *toolConfig() = 0;

protected:
    ~FakeEngine() = default;
};

using FakeEngineFunction = FakeEngine *(*)();
constexpr const char *FakeEngineName = "fakeEngine";
