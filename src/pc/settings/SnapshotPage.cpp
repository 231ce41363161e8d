#include "SnapshotPage.h"

#include "FolderEdit.h"
#include "SettingRowWidget.h"

#include "core/SettingsKeys.h"

SnapshotPage::SnapshotPage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::Snapshot, parent)
{
}

void SnapshotPage::slot_snapShotPathClicked()
{
    row(SettingsKeys::PC_SnapShotPath)->as<FolderEdit>()->pick();
}
