#include "StartupSequence.h"

int StartupSequence::run()
{
    m_services.installLogHandler();
    m_services.applyScreenSaver();
    m_services.showPointer();
    m_services.handIdentity();
    m_services.writeVersion();
    const CommandLine line(m_services.createApplication());
    m_services.loadLanguage();
    if (runMaintenance(line)) {
        m_services.destroyApplication();
        return ExitNormal;
    }
    if (!m_services.isFirstCopy(line.arguments())) {
        m_services.releaseSharedMemory();
        m_services.destroyApplication();
        return ExitNormal;
    }
    m_services.writeBanner(line.arguments());
    m_services.createWebServices();
    m_services.createAdvertising();
    m_services.noteScreenDpi();
    m_services.registerResources();
    if (!chooseMode(line)) {
        m_services.releaseStyles();
        m_services.releaseSharedMemory();
        m_services.destroyApplication();
        return ExitNoChoice;
    }
    m_services.startBackgroundThread();
    if (m_isPcMode)
        m_services.openPcMode(m_start);
    else
        m_services.openTvMode(m_start);
    m_services.logInitCompleted();
    const int exitCode = m_services.runEventLoop();
    shutDown();
    return exitCode;
}

bool StartupSequence::runMaintenance(const CommandLine &line)
{
    switch (line.maintenance()) {
    case CommandLine::Maintenance::Install:
        m_services.runInstall(line.joinsPlan());
        return true;
    case CommandLine::Maintenance::Uninstall:
        m_services.runUninstall();
        return true;
    case CommandLine::Maintenance::FullUninstall:
        m_services.runFullUninstall();
        return true;
    case CommandLine::Maintenance::None:
        break;
    }
    return false;
}

bool StartupSequence::chooseMode(const CommandLine &line)
{
    if (line.hasFileArgument()) {
        m_start = {true, line.fileArgument(), line.startFlags()};
        m_services.markStartedFromOutside();
        m_isPcMode = m_services.launchMode() != TvMode;
        return true;
    }
    switch (m_services.launchMode()) {
    case PcMode:
        m_isPcMode = true;
        return true;
    case TvMode:
        m_isPcMode = false;
        return true;
    default:
        break;
    }
    const std::optional<bool> choice = m_services.askMode();
    if (!choice)
        return false;
    m_isPcMode = *choice;
    return true;
}

void StartupSequence::shutDown()
{
    m_services.stopPcmTap();
    m_services.stopAdvertising();
    m_services.logClosed();
    m_services.releaseStyles();
    m_services.releaseSharedMemory();
    m_services.destroyApplication();
}
