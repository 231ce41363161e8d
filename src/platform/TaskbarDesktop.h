// The desktop's side of the progress: one word to it for each change.
#pragma once

#include "TaskbarProgress.h"

class TaskbarProgress::Desktop final {
public:
    // A button is some hundred pixels wide.
    static constexpr int Steps = 200;

    Desktop(const QString &desktopName, WId window);
    ~Desktop();
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

    // step: from 0 to Steps, below 0 for none.
    void tell(int step, bool isPaused);

private:
    struct Way;
    std::unique_ptr<Way> m_way;
};
