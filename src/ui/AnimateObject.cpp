#include "AnimateObject.h"

#include <QVariantAnimation>

AnimateObject::~AnimateObject()
{
    deleteAll();
}

void AnimateObject::initAnimate(QString) {}

void AnimateObject::startAnimate(QString, bool) {}

bool AnimateObject::hasAnimate(const QString &name) const
{
    return m_animations.contains(name);
}

QAbstractAnimation *AnimateObject::animate(const QString &name) const
{
    return m_animations.value(name).data();
}

void AnimateObject::setAnimate(const QString &name, QSharedPointer<QAbstractAnimation> animation)
{
    removeAnimate(name);
    if (animation)
        m_animations.insert(name, animation);
}

void AnimateObject::stopAll()
{
    for (const QSharedPointer<QAbstractAnimation> &animation : qAsConst(m_animations))
        animation->stop();
}

void AnimateObject::deleteAll()
{
    stopAll();
    m_animations.clear();
}

void AnimateObject::removeAnimate(const QString &name)
{
    if (const QSharedPointer<QAbstractAnimation> animation = m_animations.take(name))
        animation->stop();
}

void AnimateObject::runAnimate(const QString &name, bool forward)
{
    if (!hasAnimate(name))
        initAnimate(name);
    startAnimate(name, forward);
}

void AnimateObject::initFade(const QString &name, std::function<void(double)> changed,
                             std::function<void()> finished)
{
    if (hasAnimate(name))
        return;
    auto way = QSharedPointer<QVariantAnimation>::create();
    QObject::connect(way.data(), &QVariantAnimation::valueChanged, way.data(),
                     [changed = std::move(changed)](const QVariant &value) { changed(value.toDouble()); });
    if (finished)
        QObject::connect(way.data(), &QVariantAnimation::finished, way.data(), std::move(finished));
    setAnimate(name, way);
}

void AnimateObject::startFade(const QString &name, double from, bool forward, FadeTimes times,
                              QEasingCurve::Type curve)
{
    auto *way = qobject_cast<QVariantAnimation *>(animate(name));
    if (way == nullptr)
        return;
    way->stop();
    way->setStartValue(from);
    way->setEndValue(forward ? 1.0 : 0.0);
    way->setDuration(forward ? times.in : times.out);
    way->setEasingCurve(curve);
    way->start();
}
