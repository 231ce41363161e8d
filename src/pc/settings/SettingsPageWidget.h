// A page of the settings: the rows of its table, one below the other, with their headings. Pages with rules
// or parts of their own derive from it.
//
// A view of the model, which outlives it. GUI thread.
#pragma once

#include "SettingsModel.h"

#include <QList>
#include <QPair>
#include <QWidget>

class QLabel;
class QPushButton;
class QVBoxLayout;
class SettingRowWidget;

class SettingsPageWidget : public QWidget {
    Q_OBJECT

public:
    SettingsPageWidget(SettingsModel &model, SettingsPageId page, QWidget *parent = nullptr);

    [[nodiscard]] SettingsPageId page() const { return m_page; }
    [[nodiscard]] SettingRowWidget *row(const char *key) const;
    [[nodiscard]] const QList<SettingRowWidget *> &rowWidgets() const { return m_rows; }
    // Puts the keyboard where the first problem is; false where there is none.
    virtual bool focusProblem();
    virtual void retranslate();

protected:
    [[nodiscard]] SettingsModel &model() const { return m_model; }
    [[nodiscard]] QVBoxLayout *body() const { return m_body; }
    // What comes after the rows is put in front of the stretch at the end.
    void addPart(QWidget *part);
    QLabel *addHead(const char *text);
    // A note in the soft colour across the page.
    QLabel *addNote(const char *text);
    QPushButton *makeButton(const char *text);
    void setRowEnabled(const char *key, bool enabled);
    // Texts of the page's own, set anew with the language.
    void keepText(QLabel *label, const char *text);

private:
    SettingsModel &m_model;
    SettingsPageId m_page;
    QVBoxLayout *m_body;
    QList<SettingRowWidget *> m_rows;
    QList<QPair<QLabel *, const char *>> m_labels;
    QList<QPair<QPushButton *, const char *>> m_buttons;
};
