// Opens the dialogs of PC mode that stay beside the picture, each at most once.
//
// GUI thread. The dialogs delete themselves when they are closed; the window owns them until then.
#pragma once

#include "ui/PopDlgTyle.h"

#include <QMap>
#include <QObject>
#include <QPointer>

class QWidget;

class PcDialogs final : public QObject {
    Q_OBJECT

public:
    explicit PcDialogs(QWidget *window);

    // Shows a dialog, or brings it to the front. False for what has no dialog of its own here.
    bool show(PopDlgTyle type);
    void closeAll();

private:
    [[nodiscard]] QWidget *make(PopDlgTyle type) const;

    QWidget *m_window;
    QMap<PopDlgTyle, QPointer<QWidget>> m_open;
};
