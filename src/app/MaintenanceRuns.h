// The runs that the installer asks for: no window, work on the user's folders, and out.
//
// Main thread; what it works on comes in, so that a test gives it folders of its own. A failed step is logged
// and the next one follows.
#pragma once

#include <QString>

#include <functional>

class SettingsManager;

struct MaintenanceFolders {
    QString dataFolder;
    QString configurationFile;
    QString updateTempFolder;
    QString productFolderName;
};

struct MaintenanceActions {
    std::function<void(bool)> registerAutoplay;
    std::function<void()> removeAssociations;
    std::function<void()> shutDownServer;
};

class MaintenanceRuns final {
public:
    MaintenanceRuns(SettingsManager &store, MaintenanceFolders folders, MaintenanceActions actions);

    void install(bool joinPlan);
    void uninstall();
    void fullUninstall();

private:
    void removeOldConfiguration();
    void removeUpdateTemp();
    void migrateOldData();
    static void moveFiles(const QString &source, const QString &target);

    SettingsManager &m_store;
    MaintenanceFolders m_folders;
    MaintenanceActions m_actions;
};
