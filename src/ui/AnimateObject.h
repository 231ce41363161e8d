// Mix-in that keeps named animations: each is built at its first run and then only turned round.
//
// A widget takes it as a second base, builds the animation of a name in initAnimate() and sets direction,
// values and duration in startAnimate(). The map shares ownership of what it holds. GUI thread only.
#pragma once

#include <QAbstractAnimation>
#include <QEasingCurve>
#include <QMap>
#include <QSharedPointer>
#include <QString>

#include <functional>

class AnimateObject {
public:
    AnimateObject() = default;
    AnimateObject(const AnimateObject &) = delete;
    AnimateObject &operator=(const AnimateObject &) = delete;
    // Stops and deletes all animations: nothing of a widget is called back once it is being destroyed.
    virtual ~AnimateObject();

    // Builds the animation of a name and stores it with setAnimate(). Called once a name, before its first
    // run.
    virtual void initAnimate(QString name);
    // Starts the animation of a name in a direction; one that runs is stopped and goes on from where it is.
    virtual void startAnimate(QString name, bool forward);

    [[nodiscard]] bool hasAnimate(const QString &name) const;
    // The animation of a name, null without one.
    [[nodiscard]] QAbstractAnimation *animate(const QString &name) const;
    // Takes an animation over; one that stands under the name already is stopped and let go.
    void setAnimate(const QString &name, QSharedPointer<QAbstractAnimation> animation);
    void stopAll();
    void deleteAll();
    void removeAnimate(const QString &name);
    void runAnimate(const QString &name, bool forward);

protected:
    // How long a number takes to come and to go, in milliseconds.
    struct FadeTimes {
        int in;
        int out;
    };
    // For initAnimate(): the animation of a number between 0.0, gone, and 1.0, fully there. It is built once.
    void initFade(const QString &name, std::function<void(double)> changed,
                  std::function<void()> finished = {});
    // For startAnimate(): takes the number from where it is.
    void startFade(const QString &name, double from, bool forward, FadeTimes times,
                   QEasingCurve::Type curve = QEasingCurve::OutCubic);

private:
    QMap<QString, QSharedPointer<QAbstractAnimation>> m_animations;
};
