#include "RadioMark.h"

#include "ui/LookTokens.h"

#include <QPainter>

namespace {

// Design pixels.
constexpr int Height = 30;
constexpr int Mark = 18;
constexpr int Dot = 8;
constexpr int Gap = 10;
constexpr int Ring = 3;

constexpr QRgb Field = 0xff11171c;

} // namespace

RadioMark::RadioMark(QWidget *parent)
    : QRadioButton(parent)
{
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

QSize RadioMark::sizeHint() const
{
    return {Look::px(Ring + Mark + Gap) + QFontMetrics(Look::font(13)).horizontalAdvance(text())
                + Look::px(4),
            Look::px(Height)};
}

bool RadioMark::hitButton(const QPoint &position) const
{
    return rect().contains(position);
}

void RadioMark::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double size = Look::px(Mark);
    const QRectF mark(Look::px(Ring), (height() - size) / 2.0, size, size);
    const double line = Look::px(3) / 2.0;
    if (hasFocus()) {
        painter.setPen(QPen(Look::color(Look::AccentHover), Look::px(2)));
        painter.setBrush(Qt::NoBrush);
        const double out = Look::px(2);
        painter.drawEllipse(mark.adjusted(-out, -out, out, out));
    }
    const bool isBright = isChecked() && isEnabled();
    painter.setPen(QPen(Look::color(isBright                      ? Look::Accent
                                    : isEnabled() && underMouse() ? Look::Soft
                                                                  : Look::Mute),
                        line));
    painter.setBrush(Look::color(isBright ? Look::Accent : Field));
    painter.drawEllipse(mark.adjusted(line / 2, line / 2, -line / 2, -line / 2));
    if (isChecked()) {
        const double dot = Look::px(Dot);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::color(isEnabled() ? Look::ControlBright : Look::Mute));
        painter.drawEllipse(QRectF(mark.center().x() - dot / 2, mark.center().y() - dot / 2, dot, dot));
    }
    painter.setFont(Look::font(13));
    painter.setPen(Look::color(isEnabled() ? Look::Text : Look::Mute));
    const QRect place = rect().adjusted(Look::px(Ring + Mark + Gap), 0, 0, 0);
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
}
