#include "Answer.h"

QString outcomeText(Outcome outcome)
{
    static const struct {
        Outcome outcome;
        const char *text;
    } rows[] = {{Outcome::Found, "found"},
                {Outcome::NotConfigured, "no provider is set up"},
                {Outcome::Refused, "the address is not the provider's"},
                {Outcome::NotFound, "not known there"},
                {Outcome::Forbidden, "the key is not taken"},
                {Outcome::Busy, "too many requests"},
                {Outcome::Failed, "the provider failed"},
                {Outcome::Unreachable, "no connection"},
                {Outcome::TimedOut, "timed out"},
                {Outcome::TooLarge, "the answer is too large"},
                {Outcome::Stopped, "stopped"},
                {Outcome::Unreadable, "the answer can't be read"}};
    for (const auto &row : rows) {
        if (row.outcome == outcome)
            return QLatin1String(row.text);
    }
    return {};
}
