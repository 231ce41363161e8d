#include "QTranslateDialog.h"

#include "ILanguageBase.h"

#include <QApplication>
#include <QEvent>

QTranslateDialog::QTranslateDialog(QWidget *parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
}

void QTranslateDialog::retranslate() {}

int QTranslateDialog::exec()
{
    QApplication::setOverrideCursor(Qt::BlankCursor);
    const int result = QDialog::exec();
    QApplication::restoreOverrideCursor();
    return result;
}

void QTranslateDialog::changeEvent(QEvent *event)
{
    // What is in the language manager's list as well has been told already.
    if (event->type() == QEvent::LanguageChange && !dynamic_cast<ILanguageBase *>(this))
        retranslate();
    QDialog::changeEvent(event);
}
