// Everything outside of the settings dialog that it asks or tells.
//
// No call may wait for a disc, the network or the engine. What a host has not, keeps the body given here. It
// outlives the dialog. GUI thread.
#pragma once

#include "ILibraryPaths.h"
#include "SettingsFacts.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

struct SettingsAudioDevice {
    QString name;
    int connection{0}; // 0 none, 1 analog, 2 optical or coaxial, 3 HDMI, 4 DisplayPort
    unsigned capability{0};
};

struct SettingsProxy {
    QString host;
    QString port;
};

class ISettingsHost {
public:
    virtual ~ISettingsHost() = default;

    [[nodiscard]] virtual SettingsFacts facts() const { return SettingsFacts::ofThisMachine(); }

    // ---- the engine

    // The devices known by now. Asks for them where none is known, and the handler is told when they are.
    [[nodiscard]] virtual QList<SettingsAudioDevice> audioDevices() { return {}; }
    // Called on the GUI thread.
    virtual void setAudioDevicesHandler(std::function<void()> handler) { Q_UNUSED(handler) }
    // Whether a form of 3D output (the number stored under PC_3DMode) works on this machine.
    [[nodiscard]] virtual bool supports3DMode(int) const { return true; }
    // Hand what is stored to the engine, in the order of the calls; each follows a save.
    virtual void applyVideo() {}
    virtual void applyAudio() {}
    virtual void applySubtitle() {}
    virtual void applyRegion() {}
    virtual void applyProxy() {}
    // The media server's proxy and that of the program's own requests.
    virtual void applyServerProxy() {}

    // ---- the desktop

    // The proxy that the system is set to; without a host there is none.
    [[nodiscard]] virtual SettingsProxy systemProxy() const { return {}; }
    // Finds the extensions, in lower case and without a point, that open with this program now. The answer is
    // called once on the GUI thread, before this returns or later.
    virtual void readAssociations(std::function<void(const QStringList &)> answer) { answer({}); }
    // Changes them; done is called in the same way, with false when the system or the user refused.
    virtual void changeAssociations(const QStringList &add, const QStringList &remove,
                                    std::function<void(bool)> done)
    {
        Q_UNUSED(add)
        Q_UNUSED(remove)
        done(true);
    }
    // The page of the system's own settings where default programs are chosen.
    virtual void openSystemSettings() {}
    // Starts a program by its command line. False when it is not there.
    virtual bool startProgram(const QString &commandLine)
    {
        Q_UNUSED(commandLine)
        return false;
    }

    // ---- the library; null while there is none

    [[nodiscard]] virtual ILibraryPaths *library() { return nullptr; }
};
