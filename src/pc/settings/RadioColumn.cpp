#include "RadioColumn.h"

#include "RadioMark.h"

#include "ui/LookTokens.h"

#include <QButtonGroup>
#include <QVBoxLayout>

RadioColumn::RadioColumn(int count, QWidget *parent)
    : QWidget(parent)
    , m_group(new QButtonGroup(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Look::px(2));
    for (int index = 0; index < count; ++index) {
        auto *mark = new RadioMark(this);
        m_group->addButton(mark, index);
        layout->addWidget(mark);
    }
    if (count > 0)
        setFocusProxy(m_group->button(0));
    connect(m_group, QOverload<QAbstractButton *, bool>::of(&QButtonGroup::buttonToggled), this,
            [this](QAbstractButton *button, bool isChecked) {
                emit toggled(button, isChecked);
                if (isChecked)
                    emit chosen(m_group->id(button));
            });
}

void RadioColumn::setTexts(const QStringList &texts)
{
    for (int index = 0; index < texts.size(); ++index) {
        if (QAbstractButton *each = button(index))
            each->setText(texts.at(index));
    }
}

void RadioColumn::setCurrent(int index)
{
    if (QAbstractButton *each = button(index)) {
        each->setChecked(true);
        setFocusProxy(each);
    }
}

int RadioColumn::current() const
{
    return m_group->checkedId();
}

QAbstractButton *RadioColumn::button(int index) const
{
    return m_group->button(index);
}
