// The text of a message: wraps anywhere, so that a path without blanks wraps too, can be selected and copied,
// follows links, and scrolls when it is given less height than it needs.
//
// Plain text, or rich text as QLabel would recognise it. GUI thread.
#pragma once

#include <QTextBrowser>

class MessageText final : public QTextBrowser {
    Q_OBJECT

public:
    explicit MessageText(QWidget *parent = nullptr);

    void setMessage(const QString &text);
    // Height that the whole text needs at a width.
    [[nodiscard]] int heightFor(int width) const;
    // Gives it the height of its text at a width, but at most limit.
    void fit(int width, int limit);

private:
    QString m_message;
};
