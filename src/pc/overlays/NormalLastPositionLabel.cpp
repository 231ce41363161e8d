#include "NormalLastPositionLabel.h"

#include "player/QPlayer.h"
#include "ui/FixedDigits.h"
#include "ui/LookTokens.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace {

// Design pixels.
constexpr int Margin = 10;
constexpr QSize PictureSize{112, 63};
constexpr int TextGap = 12;
constexpr int TextWidth = 116;
constexpr int PlayMark = 14;

NormalLastPositionLabel::Clock systemClock()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] { return timer.elapsed(); };
}

void seekInPlayer(double seconds)
{
    QPlayer::instance()->seek(seconds);
}

} // namespace

NormalLastPositionLabel::NormalLastPositionLabel(QWidget *parent)
    : NormalLastPositionLabel(systemClock(), seekInPlayer, parent)
{
}

NormalLastPositionLabel::NormalLastPositionLabel(Clock clock, Seek seek, QWidget *parent)
    : PictureNote(parent)
    , m_clock(std::move(clock))
    , m_seek(std::move(seek))
{
    setCursor(Qt::PointingHandCursor);
    m_timer.setInterval(TickMs);
    connect(&m_timer, &QTimer::timeout, this, &NormalLastPositionLabel::tick);
    setPosition(0, {});
}

void NormalLastPositionLabel::setPosition(int seconds, const QByteArray &picture)
{
    m_seconds = qMax(seconds, 0);
    m_picture = QPixmap();
    if (!picture.isEmpty() && !m_picture.loadFromData(picture))
        qInfo() << "[Play control] stored picture of the last position is broken, bytes:" << picture.size();
    setAccessibleName(tr("Last playback at") + QLatin1Char(' ') + FixedDigits::clock(m_seconds));
    resize(sizeHint());
    updateGeometry();
    update();
    emit sig_shapeChanged();
}

QSize NormalLastPositionLabel::sizeHint() const
{
    const int picture = hasPicture() ? Look::px(PictureSize.width()) + Look::px(TextGap) : 0;
    const QFontMetrics metrics(Look::font(13));
    const int text =
        qMax(Look::px(TextWidth), metrics.horizontalAdvance(tr("Last playback at")) + Look::px(4));
    return sizeFor(
        {2 * Look::px(Margin) + picture + text, 2 * Look::px(Margin) + Look::px(PictureSize.height())});
}

void NormalLastPositionLabel::slot_showLabel()
{
    if (m_seconds <= 0)
        return;
    m_shownAt = m_clock();
    m_timer.start();
    open();
}

void NormalLastPositionLabel::slot_hideLabel()
{
    m_timer.stop();
    dismiss();
}

void NormalLastPositionLabel::tick()
{
    if (m_clock() - m_shownAt >= ShownMs)
        slot_hideLabel();
}

void NormalLastPositionLabel::goToPosition()
{
    m_seek(double(m_seconds));
    slot_hideLabel();
    QTimer::singleShot(TracksDelayMs, this, &NormalLastPositionLabel::sig_setupAudioSub);
}

QRect NormalLastPositionLabel::pictureRect() const
{
    const QRect inside =
        card().adjusted(Look::px(Margin), Look::px(Margin), -Look::px(Margin), -Look::px(Margin));
    return {inside.topLeft(), QSize(Look::px(PictureSize.width()), inside.height())};
}

void NormalLastPositionLabel::paintCard(QPainter &painter)
{
    PictureNote::paintCard(painter);
    if (underMouse() || m_isPressed) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Look::color(m_isPressed ? Look::ControlPressed : Look::ControlGround));
        painter.drawRoundedRect(card(), Look::px(Look::CornerCard), Look::px(Look::CornerCard));
    }
    int textLeft = card().left() + Look::px(Margin) + Look::px(4);
    if (hasPicture()) {
        const QRect place = pictureRect();
        painter.save();
        QPainterPath clip;
        clip.addRoundedRect(place, Look::px(Look::CornerControl), Look::px(Look::CornerControl));
        painter.setClipPath(clip);
        painter.fillRect(place, Qt::black);
        const QSize shown = m_picture.size().scaled(place.size(), Qt::KeepAspectRatioByExpanding);
        QRect target(QPoint(), shown);
        target.moveCenter(place.center());
        painter.drawPixmap(target, m_picture);
        if (underMouse()) {
            painter.fillRect(place, QColor(0, 0, 0, 90));
            const double r = Look::px(PlayMark);
            const QPointF c = QRectF(place).center();
            painter.setPen(Qt::NoPen);
            painter.setBrush(Look::color(Look::ControlBright));
            painter.drawPolygon(QPolygonF({{c.x() - r * 0.4, c.y() - r * 0.6},
                                           {c.x() - r * 0.4, c.y() + r * 0.6},
                                           {c.x() + r * 0.7, c.y()}}));
        }
        painter.restore();
        textLeft = place.right() + 1 + Look::px(TextGap);
    }
    const QRect text(textLeft, card().top(), card().right() - textLeft, card().height());
    const int middle = text.center().y();
    painter.setFont(Look::font(13));
    painter.setPen(Look::color(Look::Soft));
    painter.drawText(QRect(text.left(), middle - Look::px(22), text.width(), Look::px(20)),
                     Qt::AlignLeft | Qt::AlignVCenter, tr("Last playback at"));
    painter.setFont(Look::font(18, QFont::DemiBold));
    painter.setPen(Look::color(Look::Text));
    FixedDigits::draw(painter, QRect(text.left(), middle - Look::px(1), text.width(), Look::px(24)),
                      Qt::AlignLeft, FixedDigits::clock(m_seconds));
}

void NormalLastPositionLabel::mousePressEvent(QMouseEvent *event)
{
    m_isPressed = event->button() == Qt::LeftButton;
    update();
    event->accept();
}

void NormalLastPositionLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const bool isClick = m_isPressed && event->button() == Qt::LeftButton && card().contains(event->pos());
    m_isPressed = false;
    update();
    event->accept();
    if (isClick && isOpen())
        goToPosition();
}

void NormalLastPositionLabel::enterEvent(QEvent *event)
{
    PictureNote::enterEvent(event);
    update();
}

void NormalLastPositionLabel::leaveEvent(QEvent *event)
{
    PictureNote::leaveEvent(event);
    update();
}
