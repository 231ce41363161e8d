#include "ProbePool.h"

#include "BackgroundPriority.h"

#include <QDebug>
#include <QThread>

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <exception>
#include <list>
#include <mutex>
#include <thread>

namespace {

// The pool reads on while the database takes a batch in. The scan brings new files when so many are left and
// then as many more at once: to be woken for each of them takes longer than it takes to read one.
constexpr std::size_t LeftPerWorker = 256;
using Clock = MediaDeadline::Clock;

struct Job {
    std::shared_ptr<FolderWork> work;
    std::size_t index{0};
};

struct Worker {
    std::thread thread;
    Job job; // empty while it waits
    Clock::time_point since;
    bool isGivenUp{false};
};

} // namespace

// Shared with the threads: one that is stuck may outlive the pool.
struct ProbePool::State {
    std::shared_ptr<IFileReader> reader;
    CancelFlag cancelled;
    Limits limits;

    std::mutex mutex;
    std::condition_variable work;     // for the workers
    std::condition_variable progress; // for the scan
    std::deque<Job> queue;
    std::size_t mostLeft{0};
    std::list<std::shared_ptr<Worker>> workers;
    int stuck{0};
    bool ends{false};

    static void run(const std::shared_ptr<State> &state, const std::shared_ptr<Worker> &self);
    void finish(const Job &job, FileFacts &&facts);
};

void ProbePool::State::finish(const Job &job, FileFacts &&facts)
{
    job.work->facts[job.index] = std::move(facts);
    --job.work->waiting;
    if (job.work->waiting == 0 || queue.empty())
        progress.notify_all();
}

void ProbePool::State::run(const std::shared_ptr<State> &state, const std::shared_ptr<Worker> &self)
{
    // Whoever asks the server for something is answered first, and what was read is written before more is.
    BackgroundPriority::takeForThread();
    std::unique_lock lock(state->mutex);
    while (true) {
        state->work.wait(lock, [&] { return state->ends || !state->queue.empty(); });
        if (state->ends)
            return;
        const Job job = state->queue.front();
        state->queue.pop_front();
        if (state->queue.size() == state->mostLeft)
            state->progress.notify_all();
        self->job = job;
        self->since = Clock::now();
        lock.unlock();
        const FileTask &task = job.work->tasks[job.index];
        FileFacts facts;
        try {
            const MediaDeadline deadline(state->limits.perFile, state->cancelled.get());
            facts = state->reader->read(task, deadline);
        } catch (const std::exception &error) {
            qWarning().noquote() << "[scan]" << task.path << "cannot be read:" << error.what();
        }
        lock.lock();
        if (self->isGivenUp)
            return;
        self->job = {};
        state->finish(job, std::move(facts));
    }
}

ProbePool::ProbePool(std::shared_ptr<IFileReader> reader, CancelFlag cancelled, Limits limits)
    : m_state(std::make_shared<State>())
    , m_workers(limits.workers > 0 ? limits.workers : std::max(1, QThread::idealThreadCount()))
{
    m_state->reader = std::move(reader);
    m_state->cancelled = std::move(cancelled);
    m_state->limits = limits;
    m_state->mostLeft = LeftPerWorker * std::size_t(m_workers);
    std::lock_guard lock(m_state->mutex);
    for (int i = 0; i < m_workers; ++i)
        startWorker();
}

ProbePool::~ProbePool()
{
    std::list<std::shared_ptr<Worker>> workers;
    {
        std::unique_lock lock(m_state->mutex);
        m_state->queue.clear();
        const auto isBusy = [](const std::shared_ptr<Worker> &worker) { return worker->job.work != nullptr; };
        while (std::any_of(m_state->workers.begin(), m_state->workers.end(), isBusy)) {
            m_state->progress.wait_until(lock, nextStuck());
            replaceStuck();
        }
        m_state->ends = true;
        workers.swap(m_state->workers);
    }
    m_state->work.notify_all();
    for (const std::shared_ptr<Worker> &worker : workers)
        worker->thread.join();
}

void ProbePool::startWorker()
{
    auto worker = std::make_shared<Worker>();
    m_state->workers.push_back(worker);
    // It cannot look at itself before this is done: its first step takes the lock that is held here.
    worker->thread = std::thread([state = m_state, worker] { State::run(state, worker); });
}

template<typename Condition>
bool ProbePool::waitUntil(Condition condition)
{
    std::unique_lock lock(m_state->mutex);
    while (!condition()) {
        if (*m_state->cancelled)
            return false;
        m_state->progress.wait_until(lock, nextStuck());
        replaceStuck();
    }
    return !*m_state->cancelled;
}

// When the next thread is to be given up, or later; the lock is held. A thread that takes a file from now on,
// of which nobody is told, has as much time as any.
MediaDeadline::Clock::time_point ProbePool::nextStuck() const
{
    Clock::time_point next = Clock::now() + m_state->limits.perFile + m_state->limits.grace;
    for (const std::shared_ptr<Worker> &worker : m_state->workers) {
        if (worker->job.work)
            next = std::min(next, worker->since + m_state->limits.perFile + m_state->limits.grace);
    }
    return next;
}

void ProbePool::replaceStuck()
{
    const Clock::time_point now = Clock::now();
    for (auto it = m_state->workers.begin(); it != m_state->workers.end();) {
        const std::shared_ptr<Worker> worker = *it;
        if (!worker->job.work || now < worker->since + m_state->limits.perFile + m_state->limits.grace) {
            ++it;
            continue;
        }
        const Job job = worker->job;
        qWarning().noquote() << "[scan] given up:" << job.work->tasks[job.index].path << "takes too long";
        worker->isGivenUp = true;
        worker->thread.detach();
        it = m_state->workers.erase(it);
        ++m_state->stuck;
        m_state->finish(job, {});
        startWorker();
    }
}

bool ProbePool::submit(const std::shared_ptr<FolderWork> &work)
{
    {
        std::lock_guard lock(m_state->mutex);
        work->facts.resize(work->tasks.size());
        work->waiting = int(work->tasks.size());
    }
    State &state = *m_state;
    for (std::size_t index = 0; index < work->tasks.size();) {
        if (!waitUntil([&state] { return state.queue.size() <= state.mostLeft; }))
            return false;
        const std::size_t end = std::min(work->tasks.size(), index + state.mostLeft);
        std::lock_guard lock(state.mutex);
        for (; index < end; ++index)
            state.queue.push_back({work, index});
        state.work.notify_all();
    }
    return !*m_state->cancelled;
}

bool ProbePool::isDone(const std::shared_ptr<FolderWork> &work) const
{
    std::lock_guard lock(m_state->mutex);
    return work->waiting == 0;
}

bool ProbePool::waitFor(const std::shared_ptr<FolderWork> &work)
{
    return waitUntil([&] { return work->waiting == 0; });
}

void ProbePool::clear()
{
    std::lock_guard lock(m_state->mutex);
    m_state->queue.clear();
}

int ProbePool::takeStuck()
{
    std::lock_guard lock(m_state->mutex);
    return std::exchange(m_state->stuck, 0);
}

void ProbePool::wake()
{
    std::lock_guard lock(m_state->mutex);
    m_state->progress.notify_all();
}
