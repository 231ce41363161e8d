#include "StartButton.h"

#include "ui/FocusRing.h"

#include "ui/LookTokens.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr int kLine = 2; // design pixels

} // namespace

StartButton::StartButton(const char *name, QWidget *parent)
    : QPushButton(parent)
{
    setObjectName(QLatin1String(name));
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void StartButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    if (!FocusRing::isOn(this))
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = Look::px(kLine);
    const double corner = Look::px(Look::CornerControl) - line / 2;
    painter.setPen(QPen(Look::color(Look::ControlBright), line));
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), corner,
                            corner);
}

void StartButton::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!FocusRing::isOn(this) || !isPlain)
        event->ignore();
    else if (isEnter)
        click();
    else
        QPushButton::keyPressEvent(event);
}
