#include "NormalTipLabel.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "ui/LookTokens.h"
#include "ui/TransportIcons.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

// Design pixels.
constexpr int kFontSize = 15;
constexpr int kHeight = 40;
constexpr int kSide = 14;
constexpr int kIcon = 20;
constexpr int kGap = 8;

const char *iconOf(int tip)
{
    switch (tip) {
    case NormalTipLabel::Playing:
        return "transport_play";
    case NormalTipLabel::Paused:
        return "transport_pause";
    case NormalTipLabel::FastForward:
        return "transport_forward";
    default:
        return "transport_rewind";
    }
}

} // namespace

NormalTipLabel::NormalTipLabel(QWidget *parent)
    : NormalTipLabel(*SettingsManager::instance(), parent)
{
}

NormalTipLabel::NormalTipLabel(SettingsManager &settings, QWidget *parent)
    : OverlayWidget(parent)
    , m_settings(settings)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_timer.setSingleShot(true);
    m_timer.setInterval(ShownMs);
    connect(&m_timer, &QTimer::timeout, this, &OverlayWidget::disappear);
    hide();
}

QString NormalTipLabel::textOf(int tip) const
{
    const QString speed = m_speedText ? m_speedText().remove(QLatin1Char('-')) : QString();
    switch (tip) {
    case Playing:
        return tr("Play");
    case Paused:
        return tr("Pause");
    case FastForward:
        if (speed.contains(QLatin1Char('/')))
            return tr("Slow motion %1x").arg(speed);
        return speed.isEmpty() ? tr("Fast forward") : tr("Fast forward %1x").arg(speed);
    case Rewind:
        return speed.isEmpty() ? tr("Rewind") : tr("Rewind %1x").arg(speed);
    default:
        return {};
    }
}

void NormalTipLabel::showTip(int tip)
{
    if (!m_settings.valueOr(QLatin1String(SettingsKeys::PC_PlayStateTip), true))
        return;
    const QString text = textOf(tip);
    if (text.isEmpty())
        return;
    m_text = text;
    m_icon = QLatin1String(iconOf(tip));
    setAccessibleName(text);
    resize(sizeHint());
    update();
    emit sig_shapeChanged();
    m_timer.start();
    appear();
}

QSize NormalTipLabel::sizeHint() const
{
    const QFontMetrics metrics(Look::font(kFontSize, QFont::Medium));
    return {2 * Look::px(kSide) + Look::px(kIcon) + Look::px(kGap) + metrics.horizontalAdvance(m_text),
            Look::px(kHeight)};
}

void NormalTipLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintGround(painter);
    const int icon = Look::px(kIcon);
    painter.drawPixmap(Look::px(kSide), (height() - icon) / 2,
                       TransportIcons::pixmap(m_icon, icon, Look::color(Look::Control)));
    painter.setFont(Look::font(kFontSize, QFont::Medium));
    painter.setPen(Look::color(Look::Text));
    painter.drawText(Look::px(kSide) + icon + Look::px(kGap), Look::baseline(rect(), painter.fontMetrics()),
                     m_text);
}
