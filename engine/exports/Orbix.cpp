// The two functions that the library exports.
#include "engine/EngineCore.h"
#include "engine/EngineLog.h"

#include "contract/Orbix.h"

#include <exception>
#include <memory>
#include <mutex>

#if defined(_WIN32)
#define ORBIX_EXPORT extern "C" __declspec(dllexport)
#else
#define ORBIX_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace {

struct Owner {
    std::mutex mutex;
    std::unique_ptr<EngineCore> core;
};

Owner &owner()
{
    static Owner instance;
    return instance;
}

} // namespace

ORBIX_EXPORT libvp::IVDEngineCore *CreateVDPlayer(libvp::IVDPlayerConfig *config,
                                                  libvp::IVDOrbixCallback *callback)
{
    if (!config || !callback)
        return nullptr;
    Owner &own = owner();
    const std::lock_guard<std::mutex> lock(own.mutex);
    if (own.core)
        return nullptr;
    try {
        own.core = std::make_unique<EngineCore>(config, callback);
    } catch (const std::exception &) {
        return nullptr;
    }
    return own.core.get();
}

ORBIX_EXPORT void ReleaseVDPlayer(libvp::IVDEngineCore *core)
{
    Owner &own = owner();
    const std::lock_guard<std::mutex> lock(own.mutex);
    if (core && core == own.core.get())
        own.core.reset();
}
