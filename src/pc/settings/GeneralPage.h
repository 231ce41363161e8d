// The page "General". GUI thread.
#pragma once

#include "SettingsPageWidget.h"

class GeneralPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit GeneralPage(SettingsModel &model, QWidget *parent = nullptr);

public slots:
    void slot_logPathClicked();
};
