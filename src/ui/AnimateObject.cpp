#include "AnimateObject.h"

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
