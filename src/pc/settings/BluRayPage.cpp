#include "BluRayPage.h"

#include "RadioColumn.h"
#include "SettingRowWidget.h"

#include "core/SettingsKeys.h"

#include <QAbstractButton>
#include <QButtonGroup>

using namespace SettingsKeys;

BluRayPage::BluRayPage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::BluRay, parent)
{
    connect(row(PC_RegionCode)->as<RadioColumn>(), &RadioColumn::toggled, this,
            &BluRayPage::slot_regionCodeChanged);
    connect(model.binding(PC_BDPlayMode), &SettingBinding::valueChanged, this,
            &BluRayPage::slot_checkBDMenuAvailable);
    slot_checkBDMenuAvailable();
}

void BluRayPage::slot_regionCodeChanged(QAbstractButton *button, bool isChecked)
{
    if (!isChecked)
        return;
    const auto *radio = row(PC_RegionCode)->as<RadioColumn>();
    const auto &choices = model().binding(PC_RegionCode)->row().choices;
    const int index = radio->group()->id(button);
    if (index >= 0 && index < int(choices.size()))
        model().setValue(PC_RegionCode, choices[std::size_t(index)].value);
}

void BluRayPage::slot_checkBDMenuAvailable()
{
    const bool usesMenus = model().usesMenus();
    setRowEnabled(PC_JumpToMenu, usesMenus);
    setRowEnabled(PC_EnableBD, !usesMenus);
}
