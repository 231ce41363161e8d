// A line for a folder with a button that picks one. GUI thread.
#pragma once

#include <QWidget>

class QLineEdit;
class QPushButton;

class FolderEdit final : public QWidget {
    Q_OBJECT

public:
    explicit FolderEdit(QWidget *parent = nullptr);

    [[nodiscard]] QString folder() const;
    void setFolder(const QString &folder);
    void setName(const QString &name);
    [[nodiscard]] QLineEdit *line() const { return m_line; }
    [[nodiscard]] QPushButton *button() const { return m_button; }
    void retranslate();

    // Asks for a folder; a chosen one comes with folderChanged().
    void pick();

signals:
    void folderChanged(const QString &folder);

private:
    QLineEdit *m_line;
    QPushButton *m_button;
};
