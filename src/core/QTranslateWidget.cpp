#include "QTranslateWidget.h"

#include "ILanguageBase.h"

#include <QEvent>

QTranslateWidget::QTranslateWidget(QWidget *parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
}

void QTranslateWidget::retranslate() {}

void QTranslateWidget::changeEvent(QEvent *event)
{
    // What is in the language manager's list as well has been told already.
    if (event->type() == QEvent::LanguageChange && !dynamic_cast<ILanguageBase *>(this))
        retranslate();
    QWidget::changeEvent(event);
}
