#include "QueueEmptyPage.h"

#include "ui/LookTokens.h"
#include "ui/TransportIcons.h"

#include <QPainter>

namespace {

// Design pixels.
constexpr int kIcon = 40;
constexpr int kGap = 16;
constexpr int kSide = 32;
constexpr int kLine = 22;
constexpr int kLinePixels = 13;
constexpr int kHintPixels = 12;
constexpr int kHintHeight = 60;

} // namespace

QueueEmptyPage::QueueEmptyPage(QWidget *parent)
    : QWidget(parent)
{
    retranslate();
}

void QueueEmptyPage::retranslate()
{
    m_line = tr("The playlist is empty.");
    m_hint = tr("Drop files or folders here, or add them with a right click.");
    setAccessibleName(m_line + QLatin1Char(' ') + m_hint);
    update();
}

void QueueEmptyPage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int icon = Look::px(kIcon);
    const int total = icon + Look::px(kGap) + Look::px(kLine) + Look::px(kHintHeight);
    int top = qMax(0, (height() - total) / 2);
    painter.drawPixmap(
        (width() - icon) / 2, top,
        TransportIcons::pixmap(QStringLiteral("transport_playlist"), icon, Look::color(Look::Mute)));
    top += icon + Look::px(kGap);
    const QRect line(Look::px(kSide), top, width() - 2 * Look::px(kSide), Look::px(kLine));
    painter.setFont(Look::font(kLinePixels, QFont::DemiBold));
    painter.setPen(Look::color(Look::Text));
    painter.drawText(line, Qt::AlignHCenter | Qt::AlignVCenter, m_line);
    painter.setFont(Look::font(kHintPixels));
    painter.setPen(Look::color(Look::Soft));
    painter.drawText(QRect(line.left(), line.bottom() + 1, line.width(), Look::px(kHintHeight)),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, m_hint);
}
