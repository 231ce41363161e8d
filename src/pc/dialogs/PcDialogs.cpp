#include "PcDialogs.h"

#include "NormalAboutDLg.h"
#include "NormalColorAdjustDlg.h"
#include "NormalVideoControlDlg.h"

PcDialogs::PcDialogs(QWidget *window)
    : QObject(window)
    , m_window(window)
{
}

QWidget *PcDialogs::make(PopDlgTyle type) const
{
    switch (type) {
    case PopDlgTyle::VideoControl:
        return new NormalVideoControlDlg(m_window);
    case PopDlgTyle::ColorAdjust:
        return new NormalColorAdjustDlg(m_window);
    case PopDlgTyle::About:
        return new NormalAboutDLg(m_window);
    default:
        return nullptr;
    }
}

bool PcDialogs::show(PopDlgTyle type)
{
    QPointer<QWidget> &dialog = m_open[type];
    if (dialog.isNull()) {
        dialog = make(type);
        if (dialog.isNull())
            return false;
        dialog->setAttribute(Qt::WA_DeleteOnClose);
        dialog->adjustSize();
        dialog->move(m_window->geometry().center() - QRect(QPoint(), dialog->size()).center());
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    return true;
}

void PcDialogs::closeAll()
{
    for (const QPointer<QWidget> &dialog : qAsConst(m_open)) {
        if (!dialog.isNull())
            delete dialog.data();
    }
    m_open.clear();
}
