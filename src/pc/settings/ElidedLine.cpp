#include "ElidedLine.h"

#include <QPainter>
#include <QStyleOptionFrame>

namespace {

// What a line of text keeps free beside its text within the margins of its style.
constexpr int OwnMargin = 2;

} // namespace

QRect ElidedLine::textRect() const
{
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()
        ->subElementRect(QStyle::SE_LineEditContents, &option, this)
        .adjusted(OwnMargin, 0, -OwnMargin, 0);
}

QString ElidedLine::shownText() const
{
    return hasFocus() ? text() : fontMetrics().elidedText(text(), Qt::ElideMiddle, textRect().width());
}

void ElidedLine::paintEvent(QPaintEvent *event)
{
    const QString shown = shownText();
    if (shown == text()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    painter.drawText(textRect(), Qt::AlignLeft | Qt::AlignVCenter, shown);
}
