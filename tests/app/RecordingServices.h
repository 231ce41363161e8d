// Services that only note in which order they are asked.
#pragma once

#include "app/IStartupServices.h"

#include <QStringList>

class RecordingServices final : public IStartupServices {
public:
    // What the world answers.
    QStringList arguments{QStringLiteral("/opt/player/Quorin Player 6")};
    bool firstCopy{true};
    int mode{1};
    std::optional<bool> choice;
    int loopResult{0};

    // What happened.
    QStringList steps;
    WindowStart start;
    QStringList guardedArguments;
    QStringList bannerArguments;

    void installLogHandler() override { steps << "installLogHandler"; }
    void applyScreenSaver() override { steps << "applyScreenSaver"; }
    void showPointer() override { steps << "showPointer"; }
    void handIdentity() override { steps << "handIdentity"; }
    void writeVersion() override { steps << "writeVersion"; }
    QStringList createApplication() override
    {
        steps << "createApplication";
        return arguments;
    }
    void loadLanguage() override { steps << "loadLanguage"; }
    void runInstall(bool joinPlan) override { steps << (joinPlan ? "runInstall joining" : "runInstall"); }
    void runUninstall() override { steps << "runUninstall"; }
    void runFullUninstall() override { steps << "runFullUninstall"; }
    bool isFirstCopy(const QStringList &given) override
    {
        steps << "isFirstCopy";
        guardedArguments = given;
        return firstCopy;
    }
    void writeBanner(const QStringList &given) override
    {
        steps << "writeBanner";
        bannerArguments = given;
    }
    void createWebServices() override { steps << "createWebServices"; }
    void createAdvertising() override { steps << "createAdvertising"; }
    void noteScreenDpi() override { steps << "noteScreenDpi"; }
    void registerResources() override { steps << "registerResources"; }
    void markStartedFromOutside() override { steps << "markStartedFromOutside"; }
    int launchMode() override { return mode; }
    std::optional<bool> askMode() override
    {
        steps << "askMode";
        return choice;
    }
    void startBackgroundThread() override { steps << "startBackgroundThread"; }
    void openPcMode(const WindowStart &given) override
    {
        steps << "openPcMode";
        start = given;
    }
    void openTvMode(const WindowStart &given) override
    {
        steps << "openTvMode";
        start = given;
    }
    void logInitCompleted() override { steps << "logInitCompleted"; }
    int runEventLoop() override
    {
        steps << "runEventLoop";
        return loopResult;
    }
    void stopPcmTap() override { steps << "stopPcmTap"; }
    void stopAdvertising() override { steps << "stopAdvertising"; }
    void logClosed() override { steps << "logClosed"; }
    void releaseStyles() override { steps << "releaseStyles"; }
    void releaseSharedMemory() override { steps << "releaseSharedMemory"; }
    void destroyApplication() override { steps << "destroyApplication"; }
};
