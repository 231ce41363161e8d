// Base of the dialogs that change the picture while it plays: three labelled sliders, each bound to a
// setting.
//
// The values stand in the sliders while the dialog is open and are stored when it is destroyed. Owns neither
// settings nor picture. GUI thread.
#pragma once

#include "NormalDialogFrame.h"

#include <array>
#include <functional>

class DialogSlider;
class IPictureControl;
class QHBoxLayout;
class SettingsManager;

class PictureSliderDlg : public NormalDialogFrame {
    Q_OBJECT

public:
    static constexpr int SliderCount = 3;

    struct Row {
        QString label;
        const char *key; // of the settings
        int minimum;
        int maximum;
        int neutral; // what an absent key stands for
        std::function<QString(int value)> valueText;
    };

    ~PictureSliderDlg() override;

    [[nodiscard]] DialogSlider *slider(int row) const { return m_sliders[std::size_t(row)]; }

protected:
    // settings and control outlive the dialog.
    PictureSliderDlg(const QString &title, const std::array<Row, SliderCount> &rows,
                     SettingsManager &settings, IPictureControl &control, QWidget *parent);

    [[nodiscard]] IPictureControl &control() const { return m_control; }
    // Adds a button below the sliders.
    QPushButton *addButton(const QString &text);
    // Sets all three sliders and stores them at once.
    void applyPreset(const std::array<int, SliderCount> &values);

private:
    void store();
    void addRow(int row);

    std::array<Row, SliderCount> m_rows;
    std::array<DialogSlider *, SliderCount> m_sliders{};
    SettingsManager &m_settings;
    IPictureControl &m_control;
    class QGridLayout *m_grid{nullptr};
    QHBoxLayout *m_buttons{nullptr};
};
