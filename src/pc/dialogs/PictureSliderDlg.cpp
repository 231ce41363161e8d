#include "PictureSliderDlg.h"

#include "DialogLook.h"
#include "DialogSlider.h"

#include "core/SettingsManager.h"
#include "ui/LookTokens.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// Design pixels.
constexpr int Width = 420;
constexpr int LabelWidth = 116;
constexpr int ValueWidth = 52;

} // namespace

PictureSliderDlg::PictureSliderDlg(const QString &title, const std::array<Row, SliderCount> &rows,
                                   SettingsManager &settings, IPictureControl &control, QWidget *parent)
    : NormalDialogFrame(title, parent)
    , m_rows(rows)
    , m_settings(settings)
    , m_control(control)
{
    setMinimumWidth(Look::px(Width));
    m_grid = new QGridLayout;
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(Look::px(8));
    m_grid->setVerticalSpacing(Look::px(12));
    m_grid->setColumnMinimumWidth(0, Look::px(LabelWidth));
    m_grid->setColumnMinimumWidth(2, Look::px(ValueWidth));
    m_grid->setColumnStretch(1, 1);
    for (int row = 0; row < SliderCount; ++row)
        addRow(row);

    m_buttons = new QHBoxLayout;
    m_buttons->setSpacing(Look::px(12));
    m_buttons->addStretch(1);
    body()->addLayout(m_grid);
    body()->addStretch(1);
    body()->addSpacing(Look::px(24));
    body()->addLayout(m_buttons);
}

PictureSliderDlg::~PictureSliderDlg()
{
    store();
}

void PictureSliderDlg::addRow(int row)
{
    const Row &description = m_rows[std::size_t(row)];
    auto *label = new QLabel(description.label, panel());
    auto *slider = new DialogSlider(panel());
    auto *value = new QLabel(panel());
    value->setObjectName(QLatin1String(DialogLook::Value));
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->setBuddy(slider);
    slider->setAccessibleName(description.label);
    slider->setRange(description.minimum, description.maximum);
    slider->setNeutralValue(description.neutral);

    const auto showValue = [value, text = description.valueText](int current) {
        value->setText(text(current));
    };
    connect(slider, &QSlider::valueChanged, value, showValue);
    slider->setValue(m_settings.valueOr(QLatin1String(description.key), description.neutral));
    showValue(slider->value());

    m_grid->addWidget(label, row, 0);
    m_grid->addWidget(slider, row, 1);
    m_grid->addWidget(value, row, 2);
    m_sliders[std::size_t(row)] = slider;
}

QPushButton *PictureSliderDlg::addButton(const QString &text)
{
    QPushButton *button = makeButton(text, panel());
    // No default button: Enter in a slider must not throw the values away.
    button->setAutoDefault(false);
    m_buttons->addWidget(button);
    return button;
}

void PictureSliderDlg::applyPreset(const std::array<int, SliderCount> &values)
{
    for (std::size_t row = 0; row < m_sliders.size(); ++row)
        m_sliders[row]->setValue(values[row]);
    store();
}

void PictureSliderDlg::store()
{
    for (std::size_t row = 0; row < m_sliders.size(); ++row)
        m_settings.setValue(QLatin1String(m_rows[row].key), m_sliders[row]->value());
}
