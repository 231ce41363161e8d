#include "LibraryThreads.h"

#include "core/QSimpleThreadPack.h"

#include <QDebug>

#include <exception>

namespace {

constexpr std::array<const char *, LibraryThreads::Count> kNames{
    "library start", "movies",         "collections", "shows",           "videos",           "adult content",
    "music",         "wait for loads", "update",      "rebuild library", "library language", "heartbeat"};

} // namespace

LibraryThreads::LibraryThreads()
{
    for (std::size_t i = 0; i < m_slots.size(); ++i) {
        m_slots[i].thread = std::make_unique<QSimpleThreadPack>(&Slot::run, &m_slots[i]);
        m_slots[i].thread->setObjectName(QLatin1String(kNames[i]));
    }
}

LibraryThreads::~LibraryThreads()
{
    waitForAll();
}

bool LibraryThreads::Slot::takeAgain()
{
    std::lock_guard lock(mutex);
    isBusy = isAskedAgain;
    isAskedAgain = false;
    return isBusy;
}

void LibraryThreads::Slot::run(void *slot)
{
    auto *self = static_cast<Slot *>(slot);
    do {
        try {
            self->work();
        } catch (const std::exception &error) {
            qInfo() << "[library] a thread's work ended by an error:" << error.what();
        }
    } while (self->takeAgain());
}

void LibraryThreads::setWork(Worker worker, Work work)
{
    m_slots[worker].work = std::move(work);
}

bool LibraryThreads::start(Worker worker, WhenBusy whenBusy)
{
    Slot &slot = m_slots[worker];
    std::lock_guard lock(slot.mutex);
    if (slot.isBusy) {
        slot.isAskedAgain = slot.isAskedAgain || whenBusy == WhenBusy::DoItAgain;
        return false;
    }
    if (!slot.work)
        return false;
    slot.isBusy = true;
    // The work is done, the thread may still be on its way out: a start now would be lost.
    slot.thread->wait();
    slot.thread->start();
    return true;
}

void LibraryThreads::wait(Worker worker)
{
    Slot &slot = m_slots[worker];
    slot.thread->wait();
    // What the work has written is to be seen by whoever waited; Qt's own wait is not known to the sanitizer.
    std::lock_guard lock(slot.mutex);
}

void LibraryThreads::waitForAll()
{
    for (int worker = 0; worker < Count; ++worker)
        wait(Worker(worker));
}

LibraryThreads::Worker LibraryThreads::ofRole(LibraryRole role)
{
    return Worker(Movies + int(role) - LibraryRoles::First);
}
