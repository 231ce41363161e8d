// A play queue over a world that the test changes: which files are there, which drives answer, what discs
// hold.
#pragma once

#include "queue/PlayQueue.h"

#include "TestSettings.h"

#include "core/SettingsKeys.h"

#include "support/Eventually.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

inline PlayerDisc disc(int titles, int main)
{
    PlayerDisc made;
    made.isValid = true;
    made.mainTitle = main;
    for (int number = 1; number <= titles; ++number)
        made.titles.append({number, number * 60000, 1, {}});
    return made;
}

// What the workers see, changed by the test.
struct World {
    std::mutex mutex;
    std::condition_variable answers;
    std::set<QString> gone;
    // Their drives do not answer.
    std::set<QString> held;
    int titles{3};
    std::atomic<int> looks{0};
    std::atomic<int> asks{0};
    std::atomic<bool> onGuiThread{false};
    std::thread::id gui{std::this_thread::get_id()};
};

class PlayQueues : public testing::Test {
protected:
    PlayQueues() { make(); }

    void make()
    {
        queue.reset();
        PlayQueue::Services services;
        services.exists = [world = world](const QString &path) {
            ++world->looks;
            if (std::this_thread::get_id() == world->gui)
                world->onGuiThread = true;
            std::unique_lock<std::mutex> lock(world->mutex);
            world->answers.wait(lock, [&world, &path] { return world->held.count(path) == 0; });
            return world->gone.count(path) == 0;
        };
        services.titles = [world = world](const QString &, int) {
            ++world->asks;
            if (std::this_thread::get_id() == world->gui)
                world->onGuiThread = true;
            return disc(world->titles, 2);
        };
        services.random = [this] { return random; };
        queue = std::make_unique<PlayQueue>(*settings, services);
        tester = std::make_unique<QAbstractItemModelTester>(
            queue->model(), QAbstractItemModelTester::FailureReportingMode::Warning);
        QObject::connect(queue.get(), &PlayQueue::playSource, queue.get(),
                         [this](const QString &path, int title) {
                             played << QStringLiteral("%1 %2").arg(path).arg(title);
                         });
        QObject::connect(queue.get(), &PlayQueue::playBackEnd, queue.get(), [this] { ++ends; });
    }
    void add(const QStringList &paths)
    {
        queue->add(paths);
        ASSERT_EVENTUALLY(!queue->isAppending() && !queue->isChecking());
    }
    void setLoop(int type) { queue->setLoopType(type); }
    void playRow(int row)
    {
        queue->playRow(queue->model()->index(row));
        queue->beginSource(queue->model()->path(row));
        queue->setStatus(QPlayer::QPlayerStatus_Playing);
        played.clear();
    }
    void endOfSource()
    {
        queue->setStatus(QPlayer::QPlayerStatus_Ended);
        queue->autoPlayNext(queue->playNode());
    }
    void lose(const std::set<QString> &paths)
    {
        const std::lock_guard<std::mutex> lock(world->mutex);
        world->gone = paths;
    }
    void hold(const std::set<QString> &paths)
    {
        const std::lock_guard<std::mutex> lock(world->mutex);
        world->held = paths;
        world->answers.notify_all();
    }
    [[nodiscard]] QStringList names() const
    {
        QStringList result;
        for (int row = 0; row < queue->model()->sourceCount(); ++row)
            result << queue->model()->index(row).data().toString();
        return result;
    }

    TestSettings settings;
    std::shared_ptr<World> world = std::make_shared<World>();
    int random{0};
    QStringList played;
    int ends{0};
    std::unique_ptr<PlayQueue> queue;
    std::unique_ptr<QAbstractItemModelTester> tester;
};
