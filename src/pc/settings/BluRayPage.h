// The page "Blu-ray": what belongs to one way of playing discs follows the choice of the page "Playback". GUI
// thread.
#pragma once

#include "SettingsPageWidget.h"

class QAbstractButton;

class BluRayPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit BluRayPage(SettingsModel &model, QWidget *parent = nullptr);

public slots:
    void slot_regionCodeChanged(QAbstractButton *button, bool isChecked);
    void slot_checkBDMenuAvailable();
};
