// Takes one key of the keyboard, any key: the editor of the key table.
//
// A press is taken, its release ends the edit. Delete takes the key away. What is released here but was
// pressed elsewhere, as the Enter that opened the editor, counts for nothing. GUI thread.
#pragma once

#include <QKeySequence>
#include <QWidget>

class KeySequenceEditWidget final : public QWidget {
    Q_OBJECT

public:
    explicit KeySequenceEditWidget(QWidget *parent = nullptr);

    [[nodiscard]] QKeySequence keySequence() const { return m_sequence; }
    void setKeySequence(const QKeySequence &sequence);
    // The normalised value of the key, 0 for none.
    [[nodiscard]] int keyValue() const;
    [[nodiscard]] QString text() const;

    [[nodiscard]] int ignoredKey() const { return m_ignoredKey; }
    void setIgnoredKey(int key) { m_ignoredKey = key; }
    // Whether a key was pressed since the editor was opened.
    [[nodiscard]] bool isUsed() const { return m_isUsed; }

signals:
    void SIG_editFinished();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int m_ignoredKey{Qt::Key_Delete};
    QKeySequence m_sequence;
    bool m_isUsed{false};
};
