// How far the source has played, on the program's button in the taskbar or dock.
//
// The desktop is told of changes that can be seen alone. Where it has no such thing nothing happens. GUI
// thread.
#pragma once

#include <QString>
#include <qwindowdefs.h>

#include <memory>

class TaskbarProgress final {
public:
    TaskbarProgress();
    ~TaskbarProgress();
    TaskbarProgress(const TaskbarProgress &) = delete;
    TaskbarProgress &operator=(const TaskbarProgress &) = delete;

    // What the desktop knows the program by: its desktop name, or its window.
    void open(const QString &desktopName, WId window);

    // played: from 0 to 1.
    void show(double played, bool isPaused);
    void hide();

private:
    class Desktop;

    void tell(int step, bool isPaused);

    std::unique_ptr<Desktop> m_desktop; // none before open()
    int m_step{-1};                     // as the desktop was told last, -1 for nothing
    bool m_isPaused{false};
};
