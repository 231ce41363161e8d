#include "AudioPage.h"

#include "SettingCombo.h"
#include "SettingRowWidget.h"

#include "core/SettingsKeys.h"

using namespace SettingsKeys;

AudioPage::AudioPage(SettingsModel &model, QWidget *parent)
    : SettingsPageWidget(model, SettingsPageId::Audio, parent)
{
    connect(&model, &SettingsModel::devicesChanged, this, &AudioPage::fillDevices);
    connect(row(PC_PassThrough), &SettingRowWidget::edited, this,
            [this] { slot_changePassThroughState(this->model().value(PC_PassThrough).toBool()); });
    connect(model.binding(PC_PassThrough), &SettingBinding::valueChanged, this,
            &AudioPage::updatePassThrough);
    fillDevices();
}

void AudioPage::retranslate()
{
    SettingsPageWidget::retranslate();
    fillDevices();
}

void AudioPage::fillDevices()
{
    QList<QPair<QString, QVariant>> entries;
    const QStringList names = model().devicesOfMode();
    for (const QString &name : names)
        entries.append({model().isConnected(name) ? name : tr("%1 (not connected)").arg(name), name});
    row(PC_DefaultAudioDeviceName)->setEntries(entries, entries.isEmpty() ? tr("No device") : QString());
    row(PC_DefaultAudioDeviceName)->setEnabled(!entries.isEmpty());
    if (entries.isEmpty())
        row(PC_DefaultAudioDeviceName)->as<SettingCombo>()->setCurrentIndex(0);
    updatePassThrough();
}

void AudioPage::updatePassThrough()
{
    const bool isAllowed = model().allowsPassThrough();
    const bool isOn = isAllowed && model().value(PC_PassThrough).toBool();
    setRowEnabled(PC_PassThrough, isAllowed);
    for (const char *key : {PC_AC3, PC_DTS, PC_TrueHD})
        setRowEnabled(key, isOn);
}

void AudioPage::slot_setAudioMode(int nIndex)
{
    model().setValue(SettingTables::OutputMode, nIndex);
}

void AudioPage::slot_setAudioDevice(int nIndex)
{
    const QStringList names = model().devicesOfMode();
    if (nIndex >= 0 && nIndex < names.size())
        model().setValue(PC_DefaultAudioDeviceName, names.at(nIndex));
}

void AudioPage::slot_changePassThroughState(bool isChecked)
{
    model().setValue(PC_PassThrough, isChecked);
    model().setValue(PC_PassThroughButtonEnable, isChecked);
    updatePassThrough();
}

void AudioPage::slot_setVolumeAmplification(int nValue)
{
    model().setValue(PC_VolumeAmplification, nValue);
}

void AudioPage::slot_setAudioOffset(int nValue)
{
    model().setValue(PC_AudioOffset, nValue);
}
