// The page "Network": the fields of the proxy follow the choice above them. GUI thread.
#pragma once

#include "SettingsPageWidget.h"

class NetworkPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit NetworkPage(SettingsModel &model, QWidget *parent = nullptr);

private:
    void followChoice();
};
