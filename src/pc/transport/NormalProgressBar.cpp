#include "NormalProgressBar.h"

#include "ui/FocusRing.h"

#include "ui/FixedDigits.h"
#include "ui/LookTokens.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kHeatMs = 120;

} // namespace

NormalProgressBar::NormalProgressBar(QWidget *parent)
    : QAbstractSlider(parent)
    , m_heat(this, kHeatMs, kHeatMs)
{
    setOrientation(Qt::Horizontal);
    setRange(0, 0);
    setSingleStep(StepSeconds);
    setPageStep(PageSeconds);
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
}

void NormalProgressBar::setTotal(int seconds)
{
    setMaximum(qMax(0, seconds));
    update();
}

void NormalProgressBar::setPosition(int seconds)
{
    if (!isSliderDown())
        setValue(seconds);
}

void NormalProgressBar::setChapterMarks(const QVector<int> &seconds)
{
    m_chapters = seconds;
    std::sort(m_chapters.begin(), m_chapters.end());
    update();
}

SeekTrack NormalProgressBar::track() const
{
    SeekTrack track;
    track.bounds = rect();
    track.ratio = double(DisplayScale::instance()->ratioWidth());
    track.totalSeconds = maximum();
    track.chapters = m_chapters;
    return track;
}

void NormalProgressBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    SeekTrack::State state;
    state.seconds = sliderPosition();
    state.hoverX = isEnabled() && maximum() > 0 ? m_hoverX : -1;
    state.heat = m_heat.value();
    state.enabled = isEnabled();
    state.focus = FocusRing::isOn(this);
    track().paint(painter, state);
}

void NormalProgressBar::hover(int x)
{
    if (maximum() <= 0)
        return;
    const SeekTrack line = track();
    const QRectF groove = line.groove();
    m_hoverX = qBound(qRound(groove.left()), x, qRound(groove.right()));
    update();
    emit sig_mouseHoverd(FixedDigits::clock(line.secondsAt(x)), mapToGlobal(QPoint(m_hoverX, 0)));
}

void NormalProgressBar::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || maximum() <= 0) {
        event->ignore();
        return;
    }
    m_beforeDrag = value();
    setTracking(false);
    setSliderDown(true);
    setSliderPosition(track().secondsAt(event->x()));
    hover(event->x());
}

void NormalProgressBar::mouseMoveEvent(QMouseEvent *event)
{
    hover(event->x());
    if (isSliderDown())
        setSliderPosition(track().secondsAt(event->x()));
    else
        event->ignore();
}

void NormalProgressBar::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !isSliderDown()) {
        event->ignore();
        return;
    }
    const int chosen = track().secondsAt(event->x());
    setSliderDown(false);
    setTracking(true);
    choose(chosen);
    if (!rect().contains(event->pos()))
        leaveEvent(event);
}

void NormalProgressBar::choose(int seconds)
{
    setValue(seconds);
    update();
    emit sig_valueChanged(value());
}

void NormalProgressBar::cancelDrag()
{
    if (!isSliderDown())
        return;
    // Back first, so that letting go changes nothing.
    setSliderPosition(m_beforeDrag);
    setSliderDown(false);
    setTracking(true);
    update();
}

void NormalProgressBar::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && isSliderDown()) {
        cancelDrag();
        return;
    }
    const struct {
        int key;
        int target;
    } moves[] = {
        {Qt::Key_Left, value() - StepSeconds},
        {Qt::Key_Right, value() + StepSeconds},
        {Qt::Key_PageUp, value() + PageSeconds},
        {Qt::Key_PageDown, value() - PageSeconds},
        {Qt::Key_Home, 0},
    };
    const auto move = std::find_if(std::begin(moves), std::end(moves),
                                   [&](const auto &row) { return row.key == event->key(); });
    if (move == std::end(moves) || event->modifiers() != Qt::NoModifier || maximum() <= 0 || isSliderDown()) {
        event->ignore();
        return;
    }
    choose(qBound(0, move->target, maximum()));
}

void NormalProgressBar::wheelEvent(QWheelEvent *event)
{
    // The wheel is the volume's, wherever on the bar it turns.
    event->ignore();
}

void NormalProgressBar::enterEvent(QEvent *event)
{
    if (maximum() > 0)
        m_heat.warm(true);
    QAbstractSlider::enterEvent(event);
}

void NormalProgressBar::leaveEvent(QEvent *)
{
    if (isSliderDown())
        return;
    m_hoverX = -1;
    m_heat.warm(false);
    update();
    emit sig_mouseLeaved();
}

void NormalProgressBar::hideEvent(QHideEvent *event)
{
    cancelDrag();
    m_heat.cool();
    if (m_hoverX >= 0) {
        m_hoverX = -1;
        emit sig_mouseLeaved();
    }
    QAbstractSlider::hideEvent(event);
}

void NormalProgressBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        cancelDrag();
    QAbstractSlider::changeEvent(event);
}
