#include "SeekTrack.h"

#include "ui/LookTokens.h"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

namespace {

// Design pixels.
constexpr double kInset = 10;
constexpr double kThin = 4;
constexpr double kThick = 7;
constexpr double kChapterGap = 3;
constexpr double kKnob = 6;
constexpr double kHotKnob = 8;
constexpr double kRing = 2;

QRectF thickened(const QRectF &rect, double height)
{
    return {rect.left(), rect.center().y() - height / 2, rect.width(), height};
}

} // namespace

QRectF SeekTrack::groove() const
{
    // On whole pixels, so that the thin line is sharp.
    const int inset = qRound(kInset * ratio);
    const int height = qMax(2, qRound(kThin * ratio));
    return {double(bounds.left() + inset), double(bounds.top()) + qFloor((bounds.height() - height) / 2.0),
            double(qMax(0, bounds.width() - 2 * inset)), double(height)};
}

double SeekTrack::xOf(int seconds) const
{
    const QRectF line = groove();
    if (totalSeconds <= 0)
        return line.left();
    return line.left() + line.width() * qBound(0, seconds, totalSeconds) / totalSeconds;
}

int SeekTrack::secondsAt(int x) const
{
    const QRectF line = groove();
    if (totalSeconds <= 0 || line.width() <= 0)
        return 0;
    return qBound(0, qRound((x - line.left()) * totalSeconds / line.width()), totalSeconds);
}

QVector<QRectF> SeekTrack::segments() const
{
    const QRectF line = groove();
    const double gap = qMax(1.0, double(qRound(kChapterGap * ratio)));
    QVector<QRectF> result;
    double left = line.left();
    for (const int chapter : chapters) {
        if (chapter <= 0 || chapter >= totalSeconds)
            continue;
        const double cut = qRound(xOf(chapter)) - qFloor(gap / 2);
        // Chapters that lie closer than a gap are one.
        if (cut - left < gap)
            continue;
        result.append({left, line.top(), cut - left, line.height()});
        left = cut + gap;
    }
    result.append({left, line.top(), qMax(0.0, line.right() - left), line.height()});
    return result;
}

void SeekTrack::paint(QPainter &painter, const State &state) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double position = xOf(state.seconds);
    const double played = state.enabled ? position : groove().left();
    for (const QRectF &segment : segments()) {
        const bool hovered =
            state.hoverX >= 0 && state.hoverX >= segment.left() && state.hoverX < segment.right();
        const double heat = state.enabled ? (hovered ? state.heat : state.heat * 0.35) : 0.0;
        const QRectF body = thickened(segment, segment.height() + heat * (kThick - kThin) * ratio);
        QPainterPath shape;
        shape.addRoundedRect(body, body.height() / 2, body.height() / 2);
        painter.save();
        painter.setClipPath(shape);
        painter.fillRect(body, Look::color(state.enabled ? Look::Track : Look::TrackOff));
        // The way to where a click would lead.
        if (state.enabled && state.hoverX > played)
            painter.fillRect(QRectF(played, body.top(), state.hoverX - played, body.height()),
                             Look::color(Look::Track));
        if (played > body.left())
            painter.fillRect(QRectF(body.left(), body.top(), played - body.left(), body.height()),
                             Look::color(state.heat > 0.5 ? Look::AccentHover : Look::Accent));
        painter.restore();
    }
    if (!state.enabled)
        return;
    const QPointF centre(position, groove().center().y());
    const double radius = (kKnob + state.heat * (kHotKnob - kKnob)) * ratio;
    painter.setBrush(QColor(0, 0, 0, 70));
    painter.drawEllipse(centre + QPointF(0, ratio), radius + ratio, radius + ratio);
    painter.setBrush(Look::color(Look::ControlBright));
    painter.drawEllipse(centre, radius, radius);
    if (state.focus) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(Look::color(Look::AccentHover), kRing * ratio));
        painter.drawEllipse(centre, radius + kRing * ratio, radius + kRing * ratio);
    }
}
