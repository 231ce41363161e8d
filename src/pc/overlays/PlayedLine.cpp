#include "PlayedLine.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "ui/LookTokens.h"

#include <QPainter>

namespace {

// Design pixels; the width is the picture's.
constexpr int kThickness = 3;
constexpr int kLeastWidth = 1;

} // namespace

PlayedLine::PlayedLine(QWidget *parent)
    : PlayedLine(*SettingsManager::instance(), parent)
{
}

PlayedLine::PlayedLine(SettingsManager &settings, QWidget *parent)
    : OverlayWidget(parent)
    , m_settings(settings)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void PlayedLine::setTime(int seconds, int totalSeconds)
{
    if (m_seconds == seconds && m_totalSeconds == totalSeconds)
        return;
    m_seconds = seconds;
    m_totalSeconds = totalSeconds;
    updateShown();
    update();
}

void PlayedLine::setResting(bool resting)
{
    m_isResting = resting;
    updateShown();
}

void PlayedLine::updateShown()
{
    const bool isWished = m_settings.valueOr(QLatin1String(SettingsKeys::PC_ShowProgress), true);
    if (isWished && m_isResting && m_totalSeconds > 0)
        appear();
    else
        disappear();
}

double PlayedLine::played() const
{
    return m_totalSeconds > 0 ? qBound(0.0, double(m_seconds) / m_totalSeconds, 1.0) : 0.0;
}

QSize PlayedLine::sizeHint() const
{
    return {Look::px(kLeastWidth), Look::px(kThickness)};
}

bool PlayedLine::takesMouseAt(const QPoint &) const
{
    return false;
}

void PlayedLine::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    // A display that can't blend shows it on the ground of the bars.
    painter.fillRect(rect(), Look::color(isCompact() ? Look::Panel : Look::Track));
    QRectF part(rect());
    part.setWidth(part.width() * played());
    painter.fillRect(part, Look::color(Look::Accent));
}
