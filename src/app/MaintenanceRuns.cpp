#include "MaintenanceRuns.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QDebug>
#include <QDir>
#include <QFile>

namespace {

constexpr char kRegRecord[] = "regRecord/";

void logRemoval(const char *tag, const QString &path, const char *outcome)
{
    qInfo().noquote() << QLatin1String(tag) + path + QLatin1String(outcome);
}

} // namespace

MaintenanceRuns::MaintenanceRuns(SettingsManager &store, MaintenanceFolders folders,
                                 MaintenanceActions actions)
    : m_store(store)
    , m_folders(std::move(folders))
    , m_actions(std::move(actions))
{
}

void MaintenanceRuns::install(bool joinPlan)
{
    m_store.setAddPlan(joinPlan);
    qInfo().noquote() << QLatin1String(joinPlan ? "[Process] join plan: true" : "[Process] join plan: false");
    m_store.sync();
    removeOldConfiguration();
    removeUpdateTemp();
    m_actions.registerAutoplay(true);
    migrateOldData();
}

void MaintenanceRuns::uninstall()
{
    m_actions.removeAssociations();
    m_actions.registerAutoplay(false);
    m_actions.shutDownServer();
}

void MaintenanceRuns::fullUninstall()
{
    // The settings lie in the folder, and what is pending would bring it back when the process ends.
    m_store.abandon();
    QDir folder(m_folders.dataFolder);
    if (folder.exists()) {
        const bool removed = folder.removeRecursively();
        logRemoval("[FullUninstall] remove ", m_folders.dataFolder, removed ? " success" : " fail");
    }
    uninstall();
    // A server that was ended only now may have written once more, and who asks where a file of the program
    // lies has its folder made.
    folder.removeRecursively();
}

void MaintenanceRuns::removeOldConfiguration()
{
    // A configuration without a version was written by an older generation, whose keys mean other things.
    if (m_store.contains(QLatin1String(SettingsKeys::Version)))
        return;
    if (QFile::remove(m_folders.configurationFile))
        logRemoval("[Install] remove ", m_folders.configurationFile, " success");
    else
        logRemoval("[Install]remove ", m_folders.configurationFile, " fail");
}

void MaintenanceRuns::removeUpdateTemp()
{
    QDir folder(m_folders.updateTempFolder);
    if (!folder.exists())
        return;
    const bool removed = folder.removeRecursively();
    logRemoval("[Install] remove ", m_folders.updateTempFolder, removed ? " success" : " fail");
}

void MaintenanceRuns::migrateOldData()
{
    QString target = m_folders.dataFolder;
    if (!target.endsWith(QLatin1Char('/')) && !target.endsWith(QLatin1Char('\\')))
        target += QLatin1Char('/');
    const QString source = target + m_folders.productFolderName + QLatin1Char('/');
    moveFiles(source, target);
    const QString recordSource = source + QLatin1String(kRegRecord);
    const QString recordTarget = target + QLatin1String(kRegRecord);
    QDir().mkpath(recordTarget);
    moveFiles(recordSource, recordTarget);
    QDir().rmdir(recordSource);
    QDir().rmdir(source);
}

void MaintenanceRuns::moveFiles(const QString &source, const QString &target)
{
    const QStringList names = QDir(source).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString &name : names) {
        const QString from = source + name;
        const QString to = target + name;
        // What the present layout already has wins.
        if (QFile::exists(to) || QFile::copy(from, to))
            QFile::remove(from);
    }
}
