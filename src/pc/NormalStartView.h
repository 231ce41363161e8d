// What PC mode shows while nothing plays: the name, a way to open something, and where to drop it. GUI
// thread.
#pragma once

#include <QWidget>

class QFrame;
class QLabel;
class QPushButton;

class NormalStartView final : public QWidget {
    Q_OBJECT
public:
    explicit NormalStartView(QWidget *parent = nullptr);

    // Shows that what is being dragged would be taken.
    void setDropping(bool dropping);

    void retranslate();

signals:
    void openMediaClicked();

private:
    QFrame *m_panel{nullptr};
    QLabel *m_name{nullptr};
    QLabel *m_note{nullptr};
    QPushButton *m_open{nullptr};
};
