#include "NormalAudioView.h"

#include "ui/LookTokens.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace {

// Design pixels.
constexpr int kLargestCover = 320;
constexpr int kSmallestCover = 96;
constexpr int kGap = 20;
constexpr int kNameFont = 20;
constexpr int kBarRoom = 120; // the transport bar stands over the lower edge

} // namespace

NormalAudioView::NormalAudioView(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("audioView"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
}

void NormalAudioView::setName(const QString &name)
{
    m_name = name;
    setAccessibleName(name);
    update();
}

void NormalAudioView::setCover(const QImage &cover)
{
    m_cover = cover;
    m_scaled = {};
    update();
}

QRect NormalAudioView::coverRect() const
{
    const int room = qMin(width() - 2 * Look::px(kGap),
                          height() - Look::px(kBarRoom) - Look::px(kNameFont) - 3 * Look::px(kGap));
    const int side = qBound(Look::px(kSmallestCover), room, Look::px(kLargestCover));
    const int block = side + Look::px(kGap) + QFontMetrics(Look::font(kNameFont)).height();
    const int top = qMax(Look::px(kGap), (height() - Look::px(kBarRoom) / 2 - block) / 2);
    return {(width() - side) / 2, top, side, side};
}

void NormalAudioView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QLinearGradient ground(0, 0, 0, height());
    ground.setColorAt(0, Look::color(Look::Panel));
    ground.setColorAt(1, Look::color(Look::Deep));
    painter.fillRect(rect(), ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);

    const QRect place = coverRect();
    QPainterPath card;
    card.addRoundedRect(place, Look::px(Look::CornerCard), Look::px(Look::CornerCard));
    painter.save();
    painter.setClipPath(card);
    if (m_cover.isNull()) {
        painter.fillPath(card, Look::color(Look::Raised));
        paintMark(painter, place);
    } else {
        const QSize wanted = place.size() * devicePixelRatioF();
        if (m_scaled.isNull() || m_scaled.width() < wanted.width()) {
            const QImage scaled =
                m_cover.scaled(wanted, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
            const QRect middle((scaled.width() - wanted.width()) / 2, (scaled.height() - wanted.height()) / 2,
                               wanted.width(), wanted.height());
            m_scaled = QPixmap::fromImage(scaled.copy(middle));
        }
        painter.drawPixmap(place, m_scaled);
    }
    painter.restore();

    painter.setFont(Look::font(kNameFont, QFont::DemiBold));
    painter.setPen(Look::color(Look::Text));
    const QFontMetrics metrics(painter.font());
    const int widest = width() - 4 * Look::px(kGap);
    const QRect line(2 * Look::px(kGap), place.bottom() + Look::px(kGap), widest, metrics.height());
    painter.drawText(line, Qt::AlignHCenter | Qt::AlignTop,
                     metrics.elidedText(m_name, Qt::ElideMiddle, widest));
}

// Two notes under one beam, on the unit square.
void NormalAudioView::paintMark(QPainter &painter, const QRect &place) const
{
    painter.translate(place.topLeft());
    painter.scale(place.width() / 24.0, place.height() / 24.0);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Look::color(Look::Soft), 0.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPainterPath notes(QPointF(9.6, 16.0));
    notes.lineTo(9.6, 7.8);
    notes.lineTo(16.2, 6.6);
    notes.lineTo(16.2, 14.8);
    painter.drawPath(notes);
    painter.drawEllipse(QPointF(8.0, 16.0), 1.6, 1.4);
    painter.drawEllipse(QPointF(14.6, 14.8), 1.6, 1.4);
}
