// What the queue's panel shows while there is nothing in it. GUI thread.
#pragma once

#include <QWidget>

class QueueEmptyPage final : public QWidget {
    Q_OBJECT

public:
    explicit QueueEmptyPage(QWidget *parent = nullptr);

    void retranslate();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_line;
    QString m_hint;
};
