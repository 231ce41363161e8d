// The widget form of a thing with texts of its own: sets them anew when the language changes.
#pragma once

#include <QWidget>

class QTranslateWidget : public QWidget {
    Q_OBJECT

public:
    explicit QTranslateWidget(QWidget *parent = nullptr, Qt::WindowFlags flags = {});

    // Sets all texts; there are none of its own.
    virtual void retranslate();

protected:
    void changeEvent(QEvent *event) override;
};
