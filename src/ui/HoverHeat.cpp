#include "HoverHeat.h"

#include <QWidget>

HoverHeat::HoverHeat(QWidget *control, int upMs, int downMs)
    : m_upMs(upMs)
    , m_downMs(downMs)
{
    m_way.setDuration(upMs);
    m_way.setStartValue(0.0);
    m_way.setEndValue(1.0);
    QObject::connect(&m_way, &QVariantAnimation::valueChanged, control, qOverload<>(&QWidget::update));
}

void HoverHeat::warm(bool up)
{
    m_way.setDuration(up ? m_upMs : m_downMs);
    m_way.setDirection(up ? QAbstractAnimation::Forward : QAbstractAnimation::Backward);
    if (m_way.state() != QAbstractAnimation::Running)
        m_way.start();
}

void HoverHeat::cool()
{
    m_way.stop();
    m_way.setDirection(QAbstractAnimation::Forward);
    m_way.setCurrentTime(0);
}
