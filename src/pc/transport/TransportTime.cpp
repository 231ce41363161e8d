#include "TransportTime.h"

#include "ui/FixedDigits.h"
#include "ui/LookTokens.h"

#include <QPainter>

namespace {

constexpr int kFontSize = 13;
constexpr char kBetween[] = " / ";

} // namespace

TransportTime::TransportTime(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(text());
}

void TransportTime::setTime(int seconds, int totalSeconds)
{
    if (m_seconds == seconds && m_totalSeconds == totalSeconds)
        return;
    m_seconds = seconds;
    m_totalSeconds = totalSeconds;
    setAccessibleName(text());
    update();
}

QString TransportTime::text() const
{
    return FixedDigits::clock(m_seconds) + QLatin1String(kBetween) + FixedDigits::clock(m_totalSeconds);
}

QSize TransportTime::sizeHint() const
{
    const QFontMetrics metrics(Look::font(kFontSize));
    return {FixedDigits::width(metrics, text()), metrics.height()};
}

void TransportTime::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(Look::font(kFontSize));
    const QString position = FixedDigits::clock(m_seconds);
    painter.setPen(Look::color(isEnabled() ? Look::Text : Look::Mute));
    FixedDigits::draw(painter, rect(), Qt::AlignLeft, position);
    painter.setPen(Look::color(isEnabled() ? Look::Soft : Look::Mute));
    FixedDigits::draw(painter, rect().adjusted(FixedDigits::width(painter.fontMetrics(), position), 0, 0, 0),
                      Qt::AlignLeft, QLatin1String(kBetween) + FixedDigits::clock(m_totalSeconds));
}
