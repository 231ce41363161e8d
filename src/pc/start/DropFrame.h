// Lies over a page while something is dragged that it would take: a frame and what a drop would do. Takes no
// mouse. GUI thread.
#pragma once

#include <QWidget>

class DropFrame final : public QWidget {
    Q_OBJECT

public:
    explicit DropFrame(QWidget *parent = nullptr);

    void setText(const QString &text);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_text;
};
