// Sits on one thread of a pool and runs its tasks, one after the other, until the pool stops.
#pragma once

#include "TaskQueue.h"

#include <QObject>

#include <memory>

namespace Detail {

class Worker final : public QObject {
    Q_OBJECT

public:
    explicit Worker(std::shared_ptr<TaskQueue> queue);
    ~Worker() override;

    // Runs on the worker's thread and ends that thread's event loop at the end.
    void slot_run();

private:
    static void runTask(const Task &task);

    std::shared_ptr<TaskQueue> m_queue;
};

} // namespace Detail
