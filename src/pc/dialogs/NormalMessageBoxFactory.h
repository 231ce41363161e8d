// The usual forms of NormalMessageBox. Each builds a box, runs it and returns when it has ended.
//
// Static helpers for the GUI thread; they turn an event loop of their own while the box is open.
#pragma once

#include "NormalMessageBox.h"

#include <QMap>
#include <QObject>

class NormalMessageBoxFactory final : public QObject {
    Q_OBJECT

public:
    // Button text to what it does; a null callback only ends the box. The buttons stand in the order of the
    // map.
    using Buttons = QMap<QString, NormalMessageBox::Callback>;

    // A note with one button.
    static void showNote(QWidget *parent, const QString &text, const QString &headText = {});
    // A note with a further action beside its button.
    static int showNote(QWidget *parent, const QString &text, const QString &actionText,
                        const NormalMessageBox::Callback &action, const QString &headText = {});
    // A question; the last button is the default one. Answers the id of the button that was pressed.
    static int showQuestion(QWidget *parent, const QString &text, const Buttons &buttons);
    // A question whose one answer can be cancelled. True when the action was taken.
    static bool showCancelQuestion(QWidget *parent, const QString &text, const QString &actionText,
                                   const NormalMessageBox::Callback &action);

private:
    NormalMessageBoxFactory() = default;
};
