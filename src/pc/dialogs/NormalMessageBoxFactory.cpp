#include "NormalMessageBoxFactory.h"

namespace {

void fill(NormalMessageBox &box, const QString &text, const QString &headText = {})
{
    box.setCheckBoxHidden(true);
    if (!headText.isEmpty())
        box.setHeadText(headText);
    box.setText(text);
}

} // namespace

void NormalMessageBoxFactory::showNote(QWidget *parent, const QString &text, const QString &headText)
{
    NormalMessageBox box(parent);
    fill(box, text, headText);
    box.addButton(tr("OK"));
    box.exec();
}

int NormalMessageBoxFactory::showNote(QWidget *parent, const QString &text, const QString &actionText,
                                      const NormalMessageBox::Callback &action, const QString &headText)
{
    NormalMessageBox box(parent);
    fill(box, text, headText);
    const int okId = box.addButton(tr("OK"));
    box.addButton(actionText, action);
    box.setDefaultButton(okId);
    box.exec();
    return box.result();
}

int NormalMessageBoxFactory::showQuestion(QWidget *parent, const QString &text, const Buttons &buttons)
{
    NormalMessageBox box(parent);
    fill(box, text);
    for (auto button = buttons.cbegin(); button != buttons.cend(); ++button)
        box.addButton(button.key(), button.value());
    box.exec();
    return box.result();
}

bool NormalMessageBoxFactory::showCancelQuestion(QWidget *parent, const QString &text,
                                                 const QString &actionText,
                                                 const NormalMessageBox::Callback &action)
{
    NormalMessageBox box(parent);
    fill(box, text);
    const int actionId = box.addButton(actionText, action);
    box.addButton(tr("Cancel"));
    box.setDefaultButton(actionId);
    box.exec();
    return box.result() == actionId;
}
