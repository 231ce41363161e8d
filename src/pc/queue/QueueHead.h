// The head of the queue's panel: its name, how many sources there are, and the buttons.
//
// GUI thread.
#pragma once

#include <QWidget>

class QLabel;
class TransportButton;

class QueueHead final : public QWidget {
    Q_OBJECT

public:
    explicit QueueHead(QWidget *parent = nullptr);

    void setCount(int count);
    void retranslate();

    [[nodiscard]] TransportButton *lookButton() const { return m_look; }
    [[nodiscard]] TransportButton *addButton() const { return m_add; }
    [[nodiscard]] TransportButton *optionButton() const { return m_option; }
    [[nodiscard]] TransportButton *closeButton() const { return m_close; }
    [[nodiscard]] QLabel *countLabel() const { return m_count; }

signals:
    void lookChanged(bool isGrid);
    void addClicked();
    void optionClicked();
    void closeClicked();

private:
    [[nodiscard]] TransportButton *makeButton(const char *icon);

    QLabel *m_title;
    QLabel *m_count;
    TransportButton *m_look;
    TransportButton *m_add;
    TransportButton *m_option;
    TransportButton *m_close;
};
