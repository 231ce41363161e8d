#include "ShaderWatch.h"

#include <algorithm>
#include <iterator>

namespace {

// What the graphics output says about user shaders it cannot parse or compile.
constexpr const char *refusals[] = {
    "shader compile log (status=0)", "shader link log (status=0)", "Shader appears to contain no headers",
    "Unrecognized command",          "Failed compiling shader",    "Error while parsing",
};

} // namespace

bool ShaderWatch::isRefusal(const std::string &module, const std::string &line)
{
    if (!m_armed || module.rfind("vo/gpu", 0) != 0)
        return false;
    const bool refused = std::any_of(std::begin(refusals), std::end(refusals), [&line](const char *text) {
        return line.find(text) != std::string::npos;
    });
    if (refused)
        m_armed = false;
    return refused;
}
