// A line of text that shows both ends of what is too long for it while the keyboard is elsewhere: of a path,
// the name of the folder counts most. GUI thread.
#pragma once

#include <QLineEdit>

class ElidedLine final : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    // What is drawn: the text, with its middle left out where it has no room.
    [[nodiscard]] QString shownText() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    [[nodiscard]] QRect textRect() const;
};
