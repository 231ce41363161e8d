// Decides what plays next, without knowing rows, widgets or files.
//
// The queue is described by three questions; the answer is a place in it or none. Stateless but for the
// source of random numbers; GUI thread.
#pragma once

#include <functional>

class QueueOrder final {
public:
    // Stored, so the numbers stay.
    enum LoopType : int { Once = 0, Sequence = 1, Shuffle = 2, RepeatOne = 3, RepeatAll = 4 };

    // A source, or one title of it.
    struct Place {
        int row{-1};
        int title{-1}; // -1: the source as a whole

        [[nodiscard]] bool isValid() const { return row >= 0; }
        bool operator==(const Place &other) const { return row == other.row && title == other.title; }
    };

    struct Queue {
        int count{0};
        std::function<int(int row)> titleCount;
        // Known to be gone: passed over, as it could only fail.
        std::function<bool(int row)> isGone;
    };

    // A number from 0 up.
    using Random = std::function<int()>;

    QueueOrder();
    explicit QueueOrder(Random random);

    // What follows when the source in a place has ended. No place: nothing plays on.
    [[nodiscard]] Place afterEnd(int loopType, Place current, const Queue &queue) const;
    // What the user gets who asks for the next or the last one. Without a current place both begin with the
    // first source.
    [[nodiscard]] Place next(int loopType, Place current, const Queue &queue) const;
    [[nodiscard]] Place last(int loopType, Place current, const Queue &queue) const;

private:
    [[nodiscard]] Place shuffled(const Queue &queue) const;

    Random m_random;
};
