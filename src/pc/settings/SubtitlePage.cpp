#include "SubtitlePage.h"

#include "ColorButton.h"
#include "FolderEdit.h"
#include "SettingRowWidget.h"

#include "core/SettingsKeys.h"

using namespace SettingsKeys;

SubtitlePage::SubtitlePage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::Subtitle, parent)
{
    connect(row(PC_FontColor)->as<ColorButton>(), &QPushButton::clicked, this,
            &SubtitlePage::slot_setSubtitleColor);
    connect(row(PC_OutLineColor)->as<ColorButton>(), &QPushButton::clicked, this,
            &SubtitlePage::slot_setSubtitleOutlineColor);
}

void SubtitlePage::slot_setSubtitleOffset(int nValue)
{
    model().setValue(PC_SubtitleOffset, nValue);
}

void SubtitlePage::chooseColor(const char *key)
{
    auto *button = row(key)->as<ColorButton>();
    button->choose(button->accessibleName());
}

void SubtitlePage::slot_setSubtitleColor()
{
    chooseColor(PC_FontColor);
}

void SubtitlePage::slot_setSubtitleOutlineColor()
{
    chooseColor(PC_OutLineColor);
}

void SubtitlePage::slot_subtitlePathClicked()
{
    row(PC_SubtitlePath)->as<FolderEdit>()->pick();
}
