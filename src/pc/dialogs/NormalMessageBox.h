// The one box in which PC mode asks and tells.
//
// Its buttons get ids from 100 on in the order of addButton(). It grows with its text up to half of the
// screen; a longer text scrolls, so that the buttons stay in reach. Used on the stack, through
// NormalMessageBoxFactory where one of its forms fits. GUI thread.
#pragma once

#include "NormalDialogFrame.h"

#include <QList>

#include <functional>

class MessageText;
class QCheckBox;
class QHBoxLayout;
class QPushButton;
class QWidget;

class NormalMessageBox final : public NormalDialogFrame {
    Q_OBJECT

public:
    using Callback = std::function<void(NormalMessageBox *box)>;

    static constexpr int FirstButtonId = 100;
    static constexpr int NoButton = -1;

    explicit NormalMessageBox(QWidget *parent = nullptr);

    // A head line above the text; hidden until it is given one.
    void setHeadText(const QString &text);
    void setText(const QString &text);
    void setCheckBoxText(const QString &text);
    void setCheckBoxHidden(bool hidden);
    [[nodiscard]] bool isCheckBoxChecked() const;

    // Adds a button at the end of the row and gives its id. The callback runs before the box ends, and the
    // box stays open after it where closeAfter is false. Without a callback the button always ends the box.
    int addButton(const QString &text, Callback callback = {}, bool closeAfter = true);
    // The button that Enter presses; it moves to the end of the row. Without a call it is the last one.
    void setDefaultButton(int id);

    // Id of the button that ended the box, NoButton when none did. exec() answers the same.
    [[nodiscard]] int result() const { return m_result; }
    [[nodiscard]] QPushButton *button(int id) const;

public slots:
    void slot_close() override;
    void done(int result) override;

protected:
    void fit() override;
    void showEvent(QShowEvent *event) override;

private:
    void press(int id, const Callback &callback, bool closeAfter);
    void orderFocus();

    QList<QPushButton *> m_buttons;
    int m_result{NoButton};
    int m_nextButtonId{FirstButtonId};
    int m_defaultId{NoButton};
    bool m_isEnded{false};

    class QLabel *m_head{nullptr};
    MessageText *m_text{nullptr};
    QCheckBox *m_checkBox{nullptr};
    QWidget *m_buttonRow{nullptr};
    QHBoxLayout *m_buttonLayout{nullptr};
};
