// All values of the settings dialog: every binding of the tables, the key maps and the file associations,
// with the rules between them. Reads the store, checks, and writes it in the fixed order.
//
// Knows no widget; pages are views of it. Refers to the store and the host, which outlive it. GUI thread.
#pragma once

#include "FileAssociationList.h"
#include "FolderProbe.h"
#include "ISettingsHost.h"
#include "KeyMapModel.h"
#include "SettingBinding.h"
#include "SettingTables.h"

#include <QList>
#include <QObject>

#include <array>
#include <optional>
#include <vector>

class SettingsManager;

class SettingsModel final : public QObject {
    Q_OBJECT

public:
    SettingsModel(SettingsManager &store, ISettingsHost &host, FolderProbe *folders = nullptr,
                  QObject *parent = nullptr);

    [[nodiscard]] const SettingsFacts &facts() const { return m_facts; }
    [[nodiscard]] ISettingsHost &host() const { return m_host; }

    [[nodiscard]] const QList<SettingBinding *> &bindings(SettingsPageId page) const;
    // Null for a key that no page of this machine has.
    [[nodiscard]] SettingBinding *binding(const char *key) const;
    // The value of a binding, invalid without one.
    [[nodiscard]] QVariant value(const char *key) const;
    void setValue(const char *key, const QVariant &value);
    [[nodiscard]] KeyMapModel *keys(KeyMapTables::Mode mode) const;
    [[nodiscard]] FileAssociationList *associations() const { return m_associations; }

    void load();
    // Sets values only, page by page; nothing is stored.
    void setDefaults();

    // Looks at everything that a user can get wrong and ends in checked(). A folder that does not answer is
    // refused after a while.
    void check();
    [[nodiscard]] bool isChecking() const { return !m_questions.isEmpty(); }
    void cancelCheck();
    // Where the first problem is.
    [[nodiscard]] std::optional<SettingsPageId> pageWithProblem() const;

    // Stores everything and tells the host. The keys in the order in which they were written.
    QStringList save();
    // Whether the last save reached the disk; what did not is in use all the same.
    [[nodiscard]] bool isOnDisk() const { return m_isOnDisk; }

    // ---- rules between settings

    // Devices of the output mode that is set; the stored one is among them even where it is not connected.
    [[nodiscard]] QStringList devicesOfMode() const;
    [[nodiscard]] bool isConnected(const QString &device) const;
    // The engine has found other devices.
    void updateDevices();
    [[nodiscard]] bool allowsPassThrough() const;
    [[nodiscard]] bool usesMenus() const;

signals:
    void checked(bool isGood);
    void devicesChanged();
    void adultLibraryChanged();
    void associationsRefused();

private:
    void makeRules();
    void loadDerived();
    void takeDeviceOfMode();
    void saveStep(SaveStep step, QStringList &written);
    void saveProxy(QStringList &written);
    void saveHotKeys(QStringList &written);
    void applyToEngine();
    void checkNetwork();
    void onFolderAnswered(int question, FolderProbe::Answer answer);
    [[nodiscard]] const SettingsAudioDevice *device(const QString &name) const;

    SettingsManager &m_store;
    ISettingsHost &m_host;
    SettingsFacts m_facts;
    std::array<QList<SettingBinding *>, SettingsPageCount> m_pages;
    KeyMapModel *m_pcKeys;
    KeyMapModel *m_tvKeys;
    FileAssociationList *m_associations;
    FolderProbe *m_folders;
    QHash<int, SettingBinding *> m_questions;
    QList<SettingsAudioDevice> m_devices;
    bool m_isOnDisk{true};
    int m_loadedMode{SettingTables::OutputNone};
};
