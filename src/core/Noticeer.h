// Tells the pool's owner, on the owner's thread, that a task has ended: runs the task's own continuation,
// then signals.
#pragma once

#include "TaskQueue.h"

#include <QObject>

namespace Detail {

class Noticeer final : public QObject {
    Q_OBJECT

public:
    explicit Noticeer(QObject *parent = nullptr);
    ~Noticeer() override;

    // Called on a worker's thread.
    void report(Task task);

signals:
    void signal_taskFinished(quint64 id);

protected:
    void customEvent(QEvent *event) override;

private:
    void deliver();

    std::mutex m_mutex;
    std::deque<Task> m_ended;
};

} // namespace Detail
