// Which screen TV mode occupies, and how it follows changes of the screens.
//
// One object a process, GUI thread. Reads the stored choice; writes it only when the user steps to another
// screen.
#pragma once

#include "core/Singleton.h"

#include <QList>
#include <QObject>
#include <QRect>

#include <functional>

class SettingsManager;

class TvScreenManager final : public QObject, public Singleton<TvScreenManager> {
    Q_OBJECT
public:
    // The geometry of each screen, in the desktop's order.
    using ScreenSource = std::function<QList<QRect>()>;

    // The process-wide object watches the real screens; a test hands in its own.
    TvScreenManager();
    TvScreenManager(SettingsManager &store, ScreenSource screens);

    [[nodiscard]] int screenCount() const;
    [[nodiscard]] QRect crtScreenRect() const { return m_crtScreenRect; }
    // Logical dots per inch of the screen that is exactly crtScreenRect(); 96 when there is none.
    [[nodiscard]] int crtScreenDpi() const;

public slots:
    // On to the next screen, round and round; stored.
    void SLOT_switchScreen();
    // Something about the screens has changed: chooses anew.
    void SLOT_screenChanged();

signals:
    void SIG_needUpdateGeometry(QRect crtScreenRect);
    void SIG_screenCountChanged(int count);

private:
    void watchScreens();
    [[nodiscard]] QRect nextScreen(bool forward) const;
    void moveTo(const QRect &rect);

    SettingsManager &m_store;
    ScreenSource m_screens;
    QRect m_crtScreenRect;
};
