// Tells from libmpv's log whether the custom shader was refused. Lives on the engine thread.
#pragma once

#include <string>

class ShaderWatch final {
public:
    // A shader was set; watch for what libmpv says about it.
    void arm() { m_armed = true; }
    void disarm() { m_armed = false; }

    // True once for a shader that does not compile.
    bool isRefusal(const std::string &module, const std::string &line);

private:
    bool m_armed{false};
};
