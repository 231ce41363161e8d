// One row of a page: name on the left, control on the right, and below them why a value is refused.
//
// Shows a binding and hands what the user does back to it; owns neither binding nor rules. GUI thread.
#pragma once

#include "SettingBinding.h"

#include <QWidget>

class ColorButton;
class FolderEdit;
class QGridLayout;
class QLabel;
class QLineEdit;
class RadioColumn;
class SettingCombo;
class SwitchBox;
class DialogSlider;

class SettingRowWidget final : public QWidget {
    Q_OBJECT

public:
    explicit SettingRowWidget(SettingBinding &binding, QWidget *parent = nullptr);

    [[nodiscard]] SettingBinding &binding() const { return m_binding; }
    // What takes the keyboard.
    [[nodiscard]] QWidget *control() const { return m_control; }
    // The control as what it is; null for another kind.
    template<class Control>
    [[nodiscard]] Control *as() const
    {
        return qobject_cast<Control *>(m_control);
    }
    // The entries of a choice that is not in the tables: texts with the values that they stand for.
    void setEntries(const QList<QPair<QString, QVariant>> &entries, const QString &emptyText = {});
    void setHelp(const QString &text);
    void retranslate();

signals:
    // The user, and nobody else, has chosen another value; comes before the binding has it.
    void aboutToEdit();
    void edited();

protected:
    void paintEvent(QPaintEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeControl();
    QWidget *makeSlider();
    QWidget *makeChoice();
    QWidget *makeFontFamily();
    QWidget *makeLine(bool isSecret);
    void edit(const QVariant &value);
    void display(const QVariant &value);
    void showProblem(const QString &problem);
    void fillFamilies();

    SettingBinding &m_binding;
    QGridLayout *m_grid{nullptr};
    QLabel *m_name{nullptr};
    QWidget *m_control{nullptr};
    QLabel *m_value{nullptr};
    QLabel *m_problem{nullptr};
    QLabel *m_help{nullptr};
};
