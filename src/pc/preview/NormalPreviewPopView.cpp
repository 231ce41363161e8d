#include "NormalPreviewPopView.h"

#include "ui/FixedDigits.h"
#include "ui/LookTokens.h"

#include <QPainter>

#include <algorithm>
#include <cstdlib>

namespace {

// Design pixels.
constexpr QSize PictureBox{212, 124};
constexpr QSize UsualPicture{212, 119};
constexpr int LeastWidth = 84;
constexpr int TimeHeight = 26;
constexpr int TimeSide = 12;
constexpr int TimeSize = 12;
constexpr int ShadowWidth = 12;
constexpr int AboveSlider = 8;
constexpr int FromEdge = 8;

constexpr double GroundOpacity = 0.96;
constexpr double ShadowOpacity = 0.34;
constexpr int MsASecond = 1000;

int secondsOf(const QString &time)
{
    int seconds = 0;
    const QStringList parts = time.split(QLatin1Char(':'));
    for (const QString &part : parts)
        seconds = seconds * 60 + part.toInt();
    return seconds;
}

QSize scaled(const QSize &designSize)
{
    return {Look::px(designSize.width()), Look::px(designSize.height())};
}

QPainterPath rounded(const QRectF &rect, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

QFont timeFont()
{
    return Look::font(TimeSize, QFont::DemiBold);
}

} // namespace

NormalPreviewPopView::NormalPreviewPopView(QWidget *parent)
    : OverlayWidget(parent)
{
    setFocusPolicy(Qt::NoFocus);
    m_stale.setSingleShot(true);
    connect(&m_stale, &QTimer::timeout, this, [this] {
        if (m_form == Form::Picture)
            wait();
        else
            setForm(Form::TimeOnly);
    });
    hide();
}

int NormalPreviewPopView::shadow() const
{
    return isCompact() ? 0 : Look::px(ShadowWidth);
}

QSize NormalPreviewPopView::pictureSize() const
{
    if (m_form == Form::TimeOnly)
        return {};
    if (m_lastSize.isEmpty())
        return scaled(UsualPicture);
    return m_lastSize.scaled(scaled(PictureBox), Qt::KeepAspectRatio);
}

QSize NormalPreviewPopView::cardSize() const
{
    const int text = FixedDigits::width(QFontMetrics(timeFont()), m_time) + 2 * Look::px(TimeSide);
    const QSize picture = pictureSize();
    if (picture.isEmpty())
        return {text, Look::px(TimeHeight)};
    return {std::max({picture.width(), Look::px(LeastWidth), text}), picture.height() + Look::px(TimeHeight)};
}

QSize NormalPreviewPopView::sizeHint() const
{
    return cardSize() + 2 * QSize(shadow(), shadow());
}

QRect NormalPreviewPopView::card() const
{
    return rect().adjusted(shadow(), shadow(), -shadow(), -shadow());
}

QPainterPath NormalPreviewPopView::opaqueShape() const
{
    return rounded(card(), Look::px(cornerRadius()));
}

void NormalPreviewPopView::compactChanged()
{
    place();
}

void NormalPreviewPopView::slot_showSeekView(QString time, QPoint pt)
{
    const bool isOther = !isWanted() || time != m_time;
    m_time = time;
    m_point = pt;
    m_wantedMs = secondsOf(time) * MsASecond;
    setAccessibleName(time);
    if (isOther) {
        // What was shown at another place when the pointer left is nothing to begin with.
        const bool isShown = m_form == Form::Picture && m_shownMs != m_wantedMs;
        if (isShown && !isWanted())
            wait();
        else if (isShown && !m_stale.isActive())
            m_stale.start(StaleMs);
        else if (m_form == Form::Waiting && !m_stale.isActive())
            m_stale.start(WaitMs);
        emit sig_pictureWanted(m_wantedMs);
    }
    place();
    appear();
    update();
}

void NormalPreviewPopView::slot_closeSeek()
{
    m_stale.stop();
    disappear();
}

void NormalPreviewPopView::showPicture(int positionMs, const QImage &picture)
{
    if (picture.isNull())
        return showNoPicture(positionMs);
    // One that was asked for before the pointer moved on is still better than one from before that.
    if (m_form == Form::Picture && std::abs(positionMs - m_wantedMs) > std::abs(m_shownMs - m_wantedMs))
        return;
    m_picture = QPixmap::fromImage(picture);
    m_lastSize = picture.size();
    m_shownMs = positionMs;
    if (positionMs == m_wantedMs)
        m_stale.stop();
    else if (isWanted())
        m_stale.start(StaleMs);
    setForm(Form::Picture);
}

void NormalPreviewPopView::showNoPicture(int positionMs)
{
    if (positionMs != m_wantedMs)
        return;
    m_stale.stop();
    m_picture = {};
    setForm(Form::TimeOnly);
}

void NormalPreviewPopView::reset()
{
    slot_closeSeek();
    m_picture = {};
    m_lastSize = {};
    m_form = Form::Waiting;
}

void NormalPreviewPopView::wait()
{
    m_picture = {};
    m_stale.start(WaitMs);
    setForm(Form::Waiting);
}

void NormalPreviewPopView::setForm(Form form)
{
    m_form = form;
    place();
    update();
}

// Above the point, and moved along the slider where the window ends.
void NormalPreviewPopView::place()
{
    const QWidget *around = parentWidget();
    QPoint point = m_point;
    QRect room;
    if (around) {
        room = isWindow() ? QRect(around->mapToGlobal(QPoint(0, 0)), around->size()) : around->rect();
        if (!isWindow())
            point = around->mapFromGlobal(m_point);
    }
    const QSize size = cardSize();
    QRect card(point.x() - size.width() / 2, point.y() - Look::px(AboveSlider) - size.height(), size.width(),
               size.height());
    if (!room.isEmpty()) {
        const int edge = Look::px(FromEdge);
        card.moveLeft(
            std::max(room.left() + edge, std::min(card.left(), room.right() + 1 - edge - card.width())));
        card.moveTop(std::max(room.top(), card.top()));
    }
    const QRect all = card.adjusted(-shadow(), -shadow(), shadow(), shadow());
    if (all == geometry())
        return;
    const bool isResized = all.size() != geometry().size();
    setGeometry(all);
    if (isResized && isCompact())
        emit sig_shapeChanged();
}

void NormalPreviewPopView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::NoPen);
    const QRectF place = card();
    const double radius = Look::px(cornerRadius());
    for (int ring = shadow(); ring > 0; --ring) {
        // Each ring adds a little, so that the sum falls off evenly.
        QColor dark = Look::color(Look::Deep);
        dark.setAlphaF(ShadowOpacity * 2.0 * (shadow() + 1 - ring) / (shadow() * (shadow() + 1.0)));
        painter.setBrush(dark);
        painter.drawRoundedRect(place.adjusted(-ring, -ring, ring, ring), radius + ring, radius + ring);
    }
    QColor ground = Look::color(Look::Panel);
    if (!isCompact())
        ground.setAlphaF(GroundOpacity);
    painter.fillPath(rounded(place, radius), ground);

    const QSize size = pictureSize();
    if (!size.isEmpty()) {
        const QRect pictures(card().left(), card().top(), card().width(), size.height());
        painter.save();
        painter.setClipPath(rounded(place, radius));
        painter.setClipRect(pictures, Qt::IntersectClip);
        painter.fillRect(pictures, Look::color(m_picture.isNull() ? Look::Raised : Look::Deep));
        QRect shown(QPoint(), size);
        shown.moveCenter(pictures.center());
        if (!m_picture.isNull())
            painter.drawPixmap(shown, m_picture);
        painter.restore();
    }
    const double line = Look::px(1);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Look::color(Look::TrackOff), line));
    painter.drawPath(rounded(place.adjusted(line / 2, line / 2, -line / 2, -line / 2), radius - line / 2));

    painter.setFont(timeFont());
    painter.setPen(Look::color(Look::Text));
    const int height = Look::px(TimeHeight);
    FixedDigits::draw(painter, QRect(card().left(), card().bottom() + 1 - height, card().width(), height),
                      Qt::AlignHCenter, m_time);
}
