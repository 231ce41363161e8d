#include "QueueOrder.h"

#include <QRandomGenerator>

namespace {

using Place = QueueOrder::Place;
using Queue = QueueOrder::Queue;

bool isGone(const Queue &queue, int row)
{
    return queue.isGone && queue.isGone(row);
}

// The first source at or behind a row that can be played.
Place firstFrom(const Queue &queue, int row)
{
    for (; row < queue.count; ++row) {
        if (!isGone(queue, row))
            return {row, -1};
    }
    return {};
}

// One that plays by its titles goes on with its next title, and behind its last one with the next source.
Place behind(Place current, const Queue &queue)
{
    const int titles = queue.titleCount ? queue.titleCount(current.row) : 0;
    if (current.title >= 0 && current.title + 1 < titles)
        return {current.row, current.title + 1};
    return firstFrom(queue, current.row + 1);
}

Place before(Place current, const Queue &queue)
{
    if (current.title > 0)
        return {current.row, current.title - 1};
    for (int row = current.row - 1; row >= 0; --row) {
        if (!isGone(queue, row))
            return {row, -1};
    }
    return {};
}

} // namespace

QueueOrder::QueueOrder()
    : QueueOrder([] { return int(QRandomGenerator::global()->generate() >> 1); })
{
}

QueueOrder::QueueOrder(Random random)
    : m_random(std::move(random))
{
}

Place QueueOrder::shuffled(const Queue &queue) const
{
    if (queue.count <= 0)
        return {};
    const int picked = m_random() % queue.count;
    const Place found = firstFrom(queue, picked);
    return found.isValid() ? found : firstFrom(queue, 0);
}

Place QueueOrder::afterEnd(int loopType, Place current, const Queue &queue) const
{
    if (!current.isValid() || current.row >= queue.count)
        return {};
    switch (loopType) {
    case Sequence:
        return behind(current, queue);
    case Shuffle:
        return shuffled(queue);
    case RepeatOne:
        return current;
    case RepeatAll: {
        const Place found = behind(current, queue);
        return found.isValid() ? found : firstFrom(queue, 0);
    }
    case Once:
    default:
        return {};
    }
}

Place QueueOrder::next(int loopType, Place current, const Queue &queue) const
{
    if (loopType == Shuffle)
        return shuffled(queue);
    if (!current.isValid())
        return firstFrom(queue, 0);
    const Place found = behind(current, queue);
    return found.isValid() || loopType != RepeatAll ? found : firstFrom(queue, 0);
}

Place QueueOrder::last(int loopType, Place current, const Queue &queue) const
{
    if (!current.isValid())
        return firstFrom(queue, 0);
    const Place found = before(current, queue);
    return found.isValid() || loopType != RepeatAll ? found : before({queue.count, -1}, queue);
}
