// Held while a copy of the program finds out what other copies have left behind and takes it over, so that
// two that start at once do so one after the other. Lies with the user's own data: a lock of another user
// would be in the way. A lock that can't be had within a moment is done without.
#pragma once

#include <QLockFile>

class InstanceLock final {
public:
    InstanceLock();
    InstanceLock(const InstanceLock &) = delete;
    InstanceLock &operator=(const InstanceLock &) = delete;

private:
    QLockFile m_file;
};
