// What came of a question to a metadata provider: a value, or why there is none.
#pragma once

#include <QString>

enum class Outcome {
    Found,
    NotConfigured, // nothing was sent
    Refused,       // an address that is not the provider's, or no web address at all
    NotFound,      // the provider doesn't know it
    Forbidden,     // the key is not taken
    Busy,          // too many requests, also after waiting
    Failed,        // the provider's own failure
    Unreachable,   // no connection, or cut off in the middle
    TimedOut,
    TooLarge,
    Stopped,
    Unreadable // an answer that makes no sense
};

template<typename Value>
struct Answer {
    Outcome outcome{Outcome::NotConfigured};
    Value value{};

    [[nodiscard]] bool isFound() const { return outcome == Outcome::Found; }
};

// The same question may well be answered at another time, and others fail now for the same reason.
[[nodiscard]] inline bool isPassing(Outcome outcome)
{
    switch (outcome) {
    case Outcome::NotConfigured:
    case Outcome::Forbidden:
    case Outcome::Busy:
    case Outcome::Failed:
    case Outcome::Unreachable:
    case Outcome::TimedOut:
    case Outcome::Stopped:
        return true;
    default:
        return false;
    }
}

[[nodiscard]] QString outcomeText(Outcome outcome);
