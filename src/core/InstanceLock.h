// Held while a copy of the program finds out what other copies have left behind and takes it over, so that
// two that start at once do so one after the other. Lies with the user's own data: a lock of another user
// would be in the way. Where none can be made it is done without.
#pragma once

#include <QLockFile>

class WaitBudget;

class InstanceLock final {
public:
    // Waits as long as the budget has time before its last wait.
    explicit InstanceLock(WaitBudget &budget);
    InstanceLock(const InstanceLock &) = delete;
    InstanceLock &operator=(const InstanceLock &) = delete;

    // It could not be had in time because another process has it.
    [[nodiscard]] bool isHeldElsewhere() const;

private:
    QLockFile m_file;
};
