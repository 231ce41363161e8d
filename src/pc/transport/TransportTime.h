// The time text of the transport bar: position and length, in figures that do not shake. GUI thread.
#pragma once

#include <QWidget>

class TransportTime final : public QWidget {
    Q_OBJECT

public:
    explicit TransportTime(QWidget *parent = nullptr);

    void setTime(int seconds, int totalSeconds);
    // "00:48:03 / 02:06:21"
    [[nodiscard]] QString text() const;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_seconds{0};
    int m_totalSeconds{0};
};
