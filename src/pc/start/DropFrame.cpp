#include "DropFrame.h"

#include "ui/LookTokens.h"
#include "ui/TransportIcons.h"

#include <QPainter>

namespace {

// Design pixels.
constexpr int kInset = 12;
constexpr int kLine = 2;
constexpr int kDash = 4; // lengths of a line's width
constexpr int kIcon = 48;
constexpr int kGap = 12;
constexpr int kTextPixels = 20;
constexpr int kTextHeight = 28;
constexpr int kPlateWidth = 280;
constexpr int kPlateMargin = 24;

constexpr double kVeil = 0.84;
constexpr double kTint = 0.10;

} // namespace

DropFrame::DropFrame(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void DropFrame::setText(const QString &text)
{
    m_text = text;
    setAccessibleName(text);
    update();
}

void DropFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor veil = Look::color(Look::Deep);
    veil.setAlphaF(kVeil);
    painter.fillRect(rect(), veil);

    const int inset = Look::px(kInset);
    const QRectF frame = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    QColor tint = Look::color(Look::Accent);
    tint.setAlphaF(kTint);
    QPen pen(Look::color(Look::Accent), Look::px(kLine));
    pen.setDashPattern({double(kDash), double(kDash)});
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.setBrush(tint);
    painter.drawRoundedRect(frame, Look::px(Look::CornerDialog), Look::px(Look::CornerDialog));

    const int icon = Look::px(kIcon);
    const int textHeight = Look::px(kTextHeight);
    const int top = (height() - icon - Look::px(kGap) - textHeight) / 2;
    const int margin = Look::px(kPlateMargin);
    const QFont font = Look::font(kTextPixels, QFont::DemiBold);
    const int plateWidth =
        qMax(Look::px(kPlateWidth), QFontMetrics(font).horizontalAdvance(m_text) + 2 * margin);
    const QRect plate((width() - plateWidth) / 2, top - margin, plateWidth,
                      icon + Look::px(kGap) + textHeight + 2 * margin);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Look::color(Look::Raised));
    painter.drawRoundedRect(plate, Look::px(Look::CornerDialog), Look::px(Look::CornerDialog));
    const qreal ratio = devicePixelRatioF();
    QPixmap picture = TransportIcons::pixmap(QStringLiteral("drop_here"), qRound(icon * ratio),
                                             Look::color(Look::AccentHover));
    picture.setDevicePixelRatio(ratio);
    painter.drawPixmap((width() - icon) / 2, top, picture);
    painter.setFont(font);
    painter.setPen(Look::color(Look::Text));
    painter.drawText(QRect(0, top + icon + Look::px(kGap), width(), textHeight), Qt::AlignCenter, m_text);
}
