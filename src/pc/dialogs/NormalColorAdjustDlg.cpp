#include "NormalColorAdjustDlg.h"

#include "DialogSlider.h"
#include "PlayerPictureControl.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QPushButton>

namespace {

constexpr int Least = 0;
constexpr int Most = 100;
constexpr int Neutral = 50;

struct Preset {
    const char *text;
    std::array<int, PictureSliderDlg::SliderCount> values; // in the order of the sliders
};

const Preset Presets[] = {
    {QT_TRANSLATE_NOOP("NormalColorAdjustDlg", "Reset"), {50, 50, 50}},
    {QT_TRANSLATE_NOOP("NormalColorAdjustDlg", "Soft"), {44, 51, 44}},
    {QT_TRANSLATE_NOOP("NormalColorAdjustDlg", "Bright"), {60, 52, 64}},
};

QString valueText(int value)
{
    return QString::number(value);
}

} // namespace

NormalColorAdjustDlg::NormalColorAdjustDlg(QWidget *parent)
    : NormalColorAdjustDlg(*SettingsManager::instance(), *PlayerPictureControl::instance(), parent)
{
}

NormalColorAdjustDlg::NormalColorAdjustDlg(SettingsManager &settings, IPictureControl &control,
                                           QWidget *parent)
    : PictureSliderDlg(tr("Color Adjust"),
                       {Row{tr("Brightness"), SettingsKeys::PC_Brightness, Least, Most, Neutral, valueText},
                        Row{tr("Saturation"), SettingsKeys::PC_Saturation, Least, Most, Neutral, valueText},
                        Row{tr("Contrast"), SettingsKeys::PC_Contrast, Least, Most, Neutral, valueText}},
                       settings, control, parent)
{
    for (const Preset &preset : Presets)
        connect(addButton(tr(preset.text)), &QPushButton::clicked, this,
                [this, &preset] { applyPreset(preset.values); });
    connect(slider(Brightness), &QSlider::valueChanged, this, &NormalColorAdjustDlg::slot_brightnessChanged);
    connect(slider(Saturation), &QSlider::valueChanged, this, &NormalColorAdjustDlg::slot_saturationChanged);
    connect(slider(Contrast), &QSlider::valueChanged, this, &NormalColorAdjustDlg::slot_contrastChanged);
}

void NormalColorAdjustDlg::slot_brightnessChanged(int nValue)
{
    control().setBrightness(float(nValue));
}

void NormalColorAdjustDlg::slot_saturationChanged(int nValue)
{
    control().setSaturation(float(nValue));
}

void NormalColorAdjustDlg::slot_contrastChanged(int nValue)
{
    control().setContrast(float(nValue));
}
