#include "DebugCSSKeyFilter.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>

bool DebugCSSKeyFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_1 && key->modifiers() == Qt::ControlModifier) {
            QFile file(QStringLiteral("./Resources/origin/tvStyle.css"));
            if (file.open(QIODevice::ReadOnly))
                qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
        }
    }
    return QObject::eventFilter(watched, event);
}
