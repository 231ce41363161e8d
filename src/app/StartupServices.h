// The real services behind the start-up sequence: the program's singletons, windows and platform calls.
//
// Main thread. Owns the application object; the windows end with the process.
#pragma once

#include "IStartupServices.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class LibraryStart;
class MaintenanceRuns;
class SingleApplication;
class SingleInstance;
class TerminationSignal;

class StartupServices final : public IStartupServices {
public:
    // The arguments of main(); both must outlive the object.
    StartupServices(int &argc, char **argv);
    ~StartupServices() override;

    void installLogHandler() override;
    void applyScreenSaver() override;
    void showPointer() override;
    void handIdentity() override;
    void writeVersion() override;
    QStringList createApplication() override;
    void loadLanguage() override;

    void runInstall(bool joinPlan) override;
    void runUninstall() override;
    void runFullUninstall() override;

    bool isFirstCopy(const QStringList &arguments) override;

    void writeBanner(const QStringList &arguments) override;
    void createWebServices() override;
    void createAdvertising() override;
    void noteScreenDpi() override;
    void registerResources() override;

    void markStartedFromOutside() override;
    [[nodiscard]] int launchMode() override;
    std::optional<bool> askMode() override;
    void startBackgroundThread() override;

    void openPcMode(const WindowStart &start) override;
    void openTvMode(const WindowStart &start) override;
    void logInitCompleted() override;
    int runEventLoop() override;

    void stopPcmTap() override;
    void stopAdvertising() override;
    void logClosed() override;
    void releaseStyles() override;
    void releaseSharedMemory() override;
    void destroyApplication() override;

private:
    void startLibrary();
    [[nodiscard]] static MaintenanceRuns maintenance();
    void watchTermination();

    int &m_argc;
    char **m_argv;
    std::unique_ptr<SingleApplication> m_application;
    std::unique_ptr<SingleInstance> m_guard;
    std::unique_ptr<TerminationSignal> m_termination;
    std::unique_ptr<LibraryStart> m_library;
    QString m_libraryFolder;
    QPointer<QWidget> m_window;
};
