// First page of TV mode: the product's name, the time of day, and what to do. GUI thread.
#pragma once

#include <QTimer>
#include <QWidget>

class PictureLabel;
class QLabel;

class TvStartWidget final : public QWidget {
    Q_OBJECT
public:
    explicit TvStartWidget(QWidget *parent = nullptr);

    void retranslate();
    // The screen has changed: all sizes anew.
    void updateSizeAndFont();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void showTime();

    QLabel *m_name{nullptr};
    QLabel *m_clock{nullptr};
    QLabel *m_headline{nullptr};
    QLabel *m_note{nullptr};
    PictureLabel *m_mark{nullptr};
    QTimer m_clockTimer;
};
