// A choice with all its entries in view, one below the other. Owns its buttons. GUI thread.
#pragma once

#include <QStringList>
#include <QWidget>

class QAbstractButton;
class QButtonGroup;

class RadioColumn final : public QWidget {
    Q_OBJECT

public:
    explicit RadioColumn(int count, QWidget *parent = nullptr);

    void setTexts(const QStringList &texts);
    void setCurrent(int index);
    [[nodiscard]] int current() const;
    [[nodiscard]] QAbstractButton *button(int index) const;
    [[nodiscard]] QButtonGroup *group() const { return m_group; }

signals:
    void chosen(int index);
    void toggled(QAbstractButton *button, bool isChecked);

private:
    QButtonGroup *m_group;
};
