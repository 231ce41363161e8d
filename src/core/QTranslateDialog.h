// The dialog form of a thing with texts of its own: sets them anew when the language changes.
#pragma once

#include <QDialog>

class QTranslateDialog : public QDialog {
    Q_OBJECT

public:
    explicit QTranslateDialog(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    // Sets all texts; there are none of its own.
    virtual void retranslate();

    // These dialogs are driven by keys: the pointer is hidden while one runs.
    int exec() override;

protected:
    void changeEvent(QEvent *event) override;
};
