// The page "Subtitle". GUI thread.
#pragma once

#include "SettingsPageWidget.h"

class SubtitlePage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit SubtitlePage(SettingsModel &model, QWidget *parent = nullptr);

public slots:
    void slot_setSubtitleOffset(int nValue);
    void slot_setSubtitleColor();
    void slot_setSubtitleOutlineColor();
    void slot_subtitlePathClicked();

private:
    void chooseColor(const char *key);
};
