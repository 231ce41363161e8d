// The page "Snapshot". GUI thread.
#pragma once

#include "SettingsPageWidget.h"

class SnapshotPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    explicit SnapshotPage(SettingsModel &model, QWidget *parent = nullptr);

public slots:
    void slot_snapShotPathClicked();
};
