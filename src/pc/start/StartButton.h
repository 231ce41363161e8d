// Push button of the start page: the keyboard reaches it, a click does not give it the keyboard. Until the
// keyboard's cursor is seen on it, every key is left to the window. GUI thread.
#pragma once

#include <QPushButton>

class StartButton final : public QPushButton {
    Q_OBJECT

public:
    explicit StartButton(const char *name, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};
