#include "RegistryLog.h"

#include <iostream>
#include <mutex>
#include <utility>

namespace {

struct State {
    std::mutex mutex;
    RegistryLog::Sink sink;
};

State &state()
{
    static State instance;
    return instance;
}

} // namespace

RegistryLog::Sink RegistryLog::setSink(Sink sink)
{
    std::lock_guard<std::mutex> lock(state().mutex);
    return std::exchange(state().sink, std::move(sink));
}

void RegistryLog::write(const std::string &line)
{
    Sink sink;
    {
        std::lock_guard<std::mutex> lock(state().mutex);
        sink = state().sink;
    }
    if (sink)
        sink(line);
    else
        std::cerr << line << '\n';
}
