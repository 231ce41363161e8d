#include "VideoSurface.h"

#include <QPainter>
#include <QResizeEvent>

#include <cmath>

VideoSurface::VideoSurface(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("videoSurface"));
    setAttribute(Qt::WA_DontCreateNativeAncestors);
    setAttribute(Qt::WA_NativeWindow);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_NoSystemBackground);
    setMouseTracking(true);
}

quintptr VideoSurface::nativeWindow()
{
    return quintptr(winId());
}

QSize VideoSurface::deviceSize() const
{
    // Rounded, not cut: at a factor of 1.5 an odd width would lose a column.
    const qreal ratio = devicePixelRatioF();
    return {int(std::lround(width() * ratio)), int(std::lround(height() * ratio))};
}

void VideoSurface::setPlaying(bool playing)
{
    if (m_playing == playing)
        return;
    m_playing = playing;
    // With paint-on-screen Qt keeps its backing store off this window while the engine draws.
    setAttribute(Qt::WA_PaintOnScreen, playing);
    if (!playing)
        update();
}

QPaintEngine *VideoSurface::paintEngine() const
{
    return m_playing ? nullptr : QWidget::paintEngine();
}

void VideoSurface::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const QSize size = deviceSize();
    emit deviceSizeChanged(size.width(), size.height());
}

void VideoSurface::paintEvent(QPaintEvent *event)
{
    if (m_playing)
        return;
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
}
