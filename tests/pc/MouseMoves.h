// Moves of the mouse that reach their widget wherever its window lies.
#pragma once

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

inline void moveMouse(QWidget *widget, const QPoint &position, Qt::MouseButtons buttons = Qt::NoButton)
{
    QMouseEvent move(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton, buttons,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}
