// Writes a line to the engine's log the first time only: what the engine cannot do is asked for again and
// again. May be used from any thread.
#pragma once

#include "EngineLog.h"

#include <mutex>
#include <set>
#include <string>

class LogOnce final {
public:
    void write(const std::string &line)
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            if (!m_written.insert(line).second)
                return;
        }
        engineLog("[Engine] %s", line.c_str());
    }

private:
    std::mutex m_mutex;
    std::set<std::string> m_written;
};
