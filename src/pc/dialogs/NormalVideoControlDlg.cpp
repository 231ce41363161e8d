#include "NormalVideoControlDlg.h"

#include "DialogSlider.h"
#include "PlayerPictureControl.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QPushButton>

namespace {

constexpr int NeutralShift = 200;
constexpr std::array<int, PictureSliderDlg::SliderCount> ResetValues{100, NeutralShift, 100};

float shiftOf(int value)
{
    return float(value - NeutralShift) / 100.0F;
}

QString percentText(int value)
{
    return QStringLiteral("%1 %").arg(value);
}

QString shiftText(int value)
{
    const QString text = QString::number(double(shiftOf(value)), 'f', 2);
    return value > NeutralShift ? QLatin1Char('+') + text : text;
}

QString ratioText(int value)
{
    return QString::number(value / 100.0, 'f', 2);
}

} // namespace

NormalVideoControlDlg::NormalVideoControlDlg(QWidget *parent)
    : NormalVideoControlDlg(*SettingsManager::instance(), *PlayerPictureControl::instance(), parent)
{
}

NormalVideoControlDlg::NormalVideoControlDlg(SettingsManager &settings, IPictureControl &control,
                                             QWidget *parent)
    : PictureSliderDlg(
        tr("Video Control"),
        {Row{tr("Zoom Amount"), SettingsKeys::PC_ZoomAmount, 50, 200, ResetValues[0], percentText},
         Row{tr("Vertical Shift"), SettingsKeys::PC_VerticalShift, 0, 400, ResetValues[1], shiftText},
         Row{tr("Pixel Ratio"), SettingsKeys::PC_PixelRatio, 50, 200, ResetValues[2], ratioText}},
        settings, control, parent)
{
    connect(addButton(tr("Reset")), &QPushButton::clicked, this, &NormalVideoControlDlg::slot_resetClicked);
    connect(slider(ZoomAmount), &QSlider::valueChanged, this, &NormalVideoControlDlg::slot_zoomChanged);
    connect(slider(VerticalShift), &QSlider::valueChanged, this,
            &NormalVideoControlDlg::slot_verticalShiftChanged);
    connect(slider(PixelRatio), &QSlider::valueChanged, this, &NormalVideoControlDlg::slot_pixelRatioChanged);
}

// The values act in the custom view alone, and telling the view after them applies them at once.
void NormalVideoControlDlg::slot_zoomChanged(int nValue)
{
    control().setCustomView();
    control().setZoomAmount(float(nValue) / 100.0F);
    control().setCustomView();
}

void NormalVideoControlDlg::slot_verticalShiftChanged(int nValue)
{
    control().setCustomView();
    control().setVerticalShift(shiftOf(nValue));
    control().setCustomView();
}

void NormalVideoControlDlg::slot_pixelRatioChanged(int nValue)
{
    control().setCustomView();
    control().setPixelRatio(float(nValue) / 100.0F);
    control().setCustomView();
}

void NormalVideoControlDlg::slot_resetClicked()
{
    applyPreset(ResetValues);
}
