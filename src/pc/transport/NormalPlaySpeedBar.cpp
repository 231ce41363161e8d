#include "NormalPlaySpeedBar.h"

#include "TransportButton.h"

#include "player/SpeedTable.h"
#include "ui/LookTokens.h"
#include "ui/TransportIcons.h"

#include <QPainter>

namespace {

// Design pixels.
constexpr int kHeight = 40;
constexpr int kSide = 14;
constexpr int kIcon = 20;
constexpr int kGap = 8;
constexpr int kClose = 30;
constexpr int kFontSize = 15;

QFont textFont()
{
    return Look::font(kFontSize, QFont::DemiBold);
}

} // namespace

NormalPlaySpeedBar::NormalPlaySpeedBar(QWidget *parent)
    : NormalPlaySpeedBar(PlayerCommands::ofPlayer(), parent)
{
}

NormalPlaySpeedBar::NormalPlaySpeedBar(PlayerCommands commands, QWidget *parent)
    : OverlayWidget(parent)
    , m_commands(std::move(commands))
    , m_close(new TransportButton(QStringLiteral("transport_close"), 16, this))
{
    m_close->setObjectName(QStringLiteral("pushButton_close"));
    connect(m_close, &QAbstractButton::clicked, this, &NormalPlaySpeedBar::on_pushButton_close_clicked);
    retranslate();
    hide();
}

void NormalPlaySpeedBar::retranslate()
{
    m_close->setToolTip(tr("Normal Speed"));
    m_close->setAccessibleName(tr("Normal Speed"));
}

QString NormalPlaySpeedBar::shownText() const
{
    // The arrow tells the direction.
    return QString(m_text).remove(QLatin1Char('-')) + QChar(0x00d7);
}

QSize NormalPlaySpeedBar::sizeHint() const
{
    const int text = QFontMetrics(textFont()).horizontalAdvance(shownText());
    return {Look::px(kSide) + Look::px(kIcon) + Look::px(kGap) + text + Look::px(kGap) + Look::px(kClose)
                + Look::px((kHeight - kClose) / 2),
            Look::px(kHeight)};
}

void NormalPlaySpeedBar::on_pushButton_close_clicked(bool)
{
    m_commands.setSpeedIndex(SpeedTable::Normal);
}

void NormalPlaySpeedBar::slot_updateSpeed(QPlayer::QPlayerStatus status)
{
    switch (status) {
    case QPlayer::QPlayerStatus_Forward:
    case QPlayer::QPlayerStatus_Rewind:
        m_text = m_commands.speedText();
        m_rewinding = status == QPlayer::QPlayerStatus_Rewind;
        setAccessibleName(shownText());
        update();
        emit sig_shapeChanged();
        appear();
        break;
    case QPlayer::QPlayerStatus_Paused:
        break; // the speed comes back with the play
    default:
        disappear();
        break;
    }
}

void NormalPlaySpeedBar::resizeEvent(QResizeEvent *event)
{
    OverlayWidget::resizeEvent(event);
    const int side = Look::px(kClose);
    const int gap = (height() - side) / 2;
    m_close->setGeometry(width() - gap - side, gap, side, side);
}

void NormalPlaySpeedBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintGround(painter);
    const int icon = Look::px(kIcon);
    const QString name =
        m_rewinding ? QStringLiteral("transport_rewind") : QStringLiteral("transport_forward");
    painter.drawPixmap(Look::px(kSide), (height() - icon) / 2,
                       TransportIcons::pixmap(name, icon, Look::color(Look::AccentHover)));
    painter.setFont(textFont());
    painter.setPen(Look::color(Look::Text));
    painter.drawText(Look::px(kSide) + icon + Look::px(kGap), Look::baseline(rect(), painter.fontMetrics()),
                     shownText());
}
