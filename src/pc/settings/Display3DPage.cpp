#include "Display3DPage.h"

#include "SettingRowWidget.h"

#include "core/SettingsKeys.h"

using namespace SettingsKeys;

Display3DPage::Display3DPage(SettingsModel &model, Tell tell, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::Display3D, parent)
    , m_tell(std::move(tell))
{
    connect(row(PC_PlayIn3D), &SettingRowWidget::edited, this, &Display3DPage::slot_playIn3DClicked);
    connect(row(PC_ConvertTo3D), &SettingRowWidget::edited, this, &Display3DPage::slot_convertTo3DClicked);
    connect(row(PC_3DMode), &SettingRowWidget::aboutToEdit, this,
            [this] { m_deviceBefore = this->model().value(PC_3DMode).toInt(); });
    connect(row(PC_3DMode), &SettingRowWidget::edited, this,
            [this] { slot_3DDeviceSelected(this->model().value(PC_3DMode).toInt()); });
    connect(model.binding(PC_3DEngine), &SettingBinding::valueChanged, this,
            [this](const QVariant &isOn) { slot_3DEngineCheckState(isOn.toBool()); });
    slot_3DEngineCheckState(model.value(PC_3DEngine).toBool());
}

void Display3DPage::tell(const QString &text)
{
    if (m_tell)
        m_tell(window(), text);
}

bool Display3DPage::refusedBySystem()
{
    if (!model().facts().isWindows7)
        return false;
    tell(tr("Oops! 3D playback support is only available on Windows 8/10 for now."));
    return true;
}

void Display3DPage::slot_playIn3DClicked()
{
    if (refusedBySystem())
        model().setValue(PC_PlayIn3D, false);
}

void Display3DPage::slot_convertTo3DClicked()
{
    if (refusedBySystem())
        model().setValue(PC_ConvertTo3D, false);
}

void Display3DPage::slot_3DDeviceSelected(int nIndex)
{
    if (refusedBySystem()) {
        model().setValue(PC_3DMode, m_deviceBefore);
        return;
    }
    if (!model().host().supports3DMode(nIndex)) {
        model().setValue(PC_3DMode, m_deviceBefore);
        tell(
            tr("Oops! The selected device does not support this mode yet. Quorin Player 6 will revert to the "
               "previous setting."));
        return;
    }
    if (nIndex == SettingTables::Hdmi14Mode)
        slot_show3DMultiScreenTip();
}

void Display3DPage::slot_show3DMultiScreenTip()
{
    if (model().facts().screenCount > 1 && model().value(PC_3DMode).toInt() == SettingTables::Hdmi14Mode)
        tell(tr("Oops! There are multiple displays detected. To use HDMI 1.4 3D output, we suggest that you "
                "keep only one display."));
}

void Display3DPage::slot_3DEngineCheckState(bool isChecked)
{
    for (const char *key : {PC_PlayIn3D, PC_ConvertTo3D, PC_3DMode, PC_MoveDirection})
        setRowEnabled(key, isChecked);
}
