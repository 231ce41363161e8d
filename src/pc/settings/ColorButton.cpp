#include "ColorButton.h"

#include "ui/LookTokens.h"

#include <QColorDialog>
#include <QPainter>

namespace {

// Design pixels.
constexpr int Height = 34;
constexpr int Swatch = 18;
constexpr int Padding = 8;

constexpr QRgb Field = 0xff11171c;

} // namespace

ColorButton::ColorButton(QWidget *parent)
    : QPushButton(parent)
{
    setAutoDefault(false);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void ColorButton::setColor(const QColor &color)
{
    if (!color.isValid())
        return;
    m_color = color;
    setAccessibleDescription(color.name());
    update();
}

void ColorButton::choose(const QString &title)
{
    const QColor chosen = QColorDialog::getColor(m_color, window(), title);
    if (chosen.isValid())
        emit colorChosen(chosen);
}

QSize ColorButton::sizeHint() const
{
    return {Look::px(120), Look::px(Height)};
}

void ColorButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = hasFocus() ? Look::px(2) : Look::px(1);
    painter.setPen(QPen(Look::color(hasFocus()     ? Look::AccentHover
                                    : underMouse() ? Look::Mute
                                                   : Look::Line),
                        line));
    painter.setBrush(Look::color(Field));
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), Look::px(6),
                            Look::px(6));
    const QRectF swatch(Look::px(Padding), (height() - Look::px(Swatch)) / 2.0, Look::px(Swatch),
                        Look::px(Swatch));
    painter.setPen(QPen(Look::color(Look::Mute), Look::px(1)));
    painter.setBrush(m_color);
    painter.drawRoundedRect(swatch, Look::px(Look::CornerControl), Look::px(Look::CornerControl));
    painter.setFont(Look::font(13));
    painter.setPen(Look::color(isEnabled() ? Look::Text : Look::Mute));
    painter.drawText(rect().adjusted(int(swatch.right()) + Look::px(10), 0, -Look::px(Padding), 0),
                     Qt::AlignVCenter | Qt::AlignLeft, m_color.name());
}
