// The page "3D Display": what the machine can't show is refused at once. GUI thread.
#pragma once

#include "SettingsPageWidget.h"

#include <functional>

class Display3DPage final : public SettingsPageWidget {
    Q_OBJECT

public:
    // Tells the user; a box by default.
    using Tell = std::function<void(QWidget *window, const QString &text)>;

    explicit Display3DPage(SettingsModel &model, Tell tell, QWidget *parent = nullptr);

public slots:
    void slot_playIn3DClicked();
    void slot_convertTo3DClicked();
    void slot_3DDeviceSelected(int nIndex);
    void slot_show3DMultiScreenTip();
    void slot_3DEngineCheckState(bool isChecked);

private:
    [[nodiscard]] bool refusedBySystem();
    void tell(const QString &text);

    Tell m_tell;
    int m_deviceBefore{0};
};
