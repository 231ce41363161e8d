// What the start-up sequence works with: one operation a step, so that a test can record the order and the
// real program can wire its singletons behind it.
//
// All operations run on the main thread. Those named before createApplication() run without an application
// object.
#pragma once

#include "CommandLine.h"

#include <QStringList>

#include <optional>

// What a window needs to know at its birth.
struct WindowStart {
    bool hasFile{false};
    QString file;
    int flags{0};
};

class IStartupServices {
public:
    virtual ~IStartupServices() = default;

    virtual void installLogHandler() = 0;
    virtual void applyScreenSaver() = 0;
    virtual void showPointer() = 0;
    virtual void handIdentity() = 0;
    virtual void writeVersion() = 0;
    // Makes the application object with its local server; returns the argument list, program path first.
    virtual QStringList createApplication() = 0;
    virtual void loadLanguage() = 0;

    virtual void runInstall(bool joinPlan) = 0;
    virtual void runUninstall() = 0;
    virtual void runFullUninstall() = 0;

    // True when this is the first copy of the program. Otherwise the running copy has been given these
    // arguments, as far as it could be reached; whether that worked is nobody's business.
    virtual bool isFirstCopy(const QStringList &arguments) = 0;

    virtual void writeBanner(const QStringList &arguments) = 0;
    virtual void createWebServices() = 0;
    virtual void createAdvertising() = 0;
    virtual void noteScreenDpi() = 0;
    virtual void registerResources() = 0;

    virtual void markStartedFromOutside() = 0;
    [[nodiscard]] virtual int launchMode() = 0;
    // Asks the user; true for PC mode, nothing when the question was closed.
    virtual std::optional<bool> askMode() = 0;
    virtual void startBackgroundThread() = 0;

    virtual void openPcMode(const WindowStart &start) = 0;
    virtual void openTvMode(const WindowStart &start) = 0;
    virtual void logInitCompleted() = 0;
    virtual int runEventLoop() = 0;

    virtual void stopPcmTap() = 0;
    virtual void stopAdvertising() = 0;
    virtual void logClosed() = 0;
    virtual void releaseStyles() = 0;
    virtual void releaseSharedMemory() = 0;
    virtual void destroyApplication() = 0;
};
