#include "SettingCombo.h"

#include "ui/LookTokens.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

// Design pixels.
constexpr int Height = 34;
constexpr int Padding = 12;
constexpr int ArrowRoom = 28;
constexpr int VisibleRows = 12;

constexpr QRgb Field = 0xff11171c;

} // namespace

SettingCombo::SettingCombo(QWidget *parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMaxVisibleItems(VisibleRows);
}

QSize SettingCombo::sizeHint() const
{
    return {Look::px(160), Look::px(Height)};
}

void SettingCombo::showPopup()
{
    emit aboutToShow();
    QComboBox::showPopup();
}

void SettingCombo::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isHot = isEnabled() && (hasFocus() || view()->isVisible());
    const double line = isHot ? Look::px(2) : Look::px(1);
    painter.setPen(QPen(Look::color(isHot                         ? Look::AccentHover
                                    : isEnabled() && underMouse() ? Look::Mute
                                                                  : Look::Line),
                        line));
    painter.setBrush(Look::color(isEnabled() ? Field : Look::Panel));
    painter.drawRoundedRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2), Look::px(6),
                            Look::px(6));

    const QRgb ink = isEnabled() ? Look::Text : Look::Mute;
    painter.setFont(Look::font(13));
    painter.setPen(Look::color(ink));
    const QRect place = rect().adjusted(Look::px(Padding), 0, -Look::px(ArrowRoom), 0);
    painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(currentText(), Qt::ElideRight, place.width()));

    const QPointF middle(width() - Look::px(ArrowRoom) / 2.0 - Look::px(2), height() / 2.0);
    const double half = Look::px(4);
    QPainterPath arrow;
    arrow.moveTo(middle.x() - half, middle.y() - half / 2);
    arrow.lineTo(middle.x(), middle.y() + half / 2);
    arrow.lineTo(middle.x() + half, middle.y() - half / 2);
    painter.setPen(QPen(Look::color(isEnabled() ? Look::Soft : Look::Mute), Look::px(16) / 10.0,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(arrow);
}

void SettingCombo::wheelEvent(QWheelEvent *event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void SettingCombo::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up)
        emit aboutToShow();
    QComboBox::keyPressEvent(event);
}
