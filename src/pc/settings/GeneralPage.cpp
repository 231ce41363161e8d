#include "GeneralPage.h"

#include "FolderEdit.h"
#include "SettingRowWidget.h"

#include "core/SettingsKeys.h"

GeneralPage::GeneralPage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::General, parent)
{
}

void GeneralPage::slot_logPathClicked()
{
    row(SettingsKeys::PC_LogPath)->as<FolderEdit>()->pick();
}
