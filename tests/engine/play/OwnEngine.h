// The engine of the test program itself instead of a library's, so that a test can look into libmpv. For a
// player of the test's own, or through QPlayer::setLoaderFactory() for that of the program. Who includes this
// links quorin_player.
#pragma once

#include "engine/EngineCore.h"
#include "engine/PlayTool.h"
#include "player/EngineLoader.h"

#include <memory>

class OwnEngine final : public IEngineLoader {
public:
    bool load() override { return true; }
    QString errorText() const override { return {}; }
    libvp::CreateVDPlayerFunction createFunction() const override { return create; }
    libvp::ReleaseVDPlayerFunction releaseFunction() const override { return release; }
    void unload() override {}

    // Null while no player has made it.
    static EngineCore *core() { return made().get(); }
    // The output that the player has set up; null without an engine.
    static PlayTool *tool()
    {
        return core() ? static_cast<PlayTool *>(core()->createPlayTool(0, nullptr, nullptr)) : nullptr;
    }

private:
    static std::unique_ptr<EngineCore> &made()
    {
        static std::unique_ptr<EngineCore> core;
        return core;
    }
    static libvp::IVDEngineCore *create(libvp::IVDPlayerConfig *config, libvp::IVDOrbixCallback *callback)
    {
        made() = std::make_unique<EngineCore>(config, callback);
        return made().get();
    }
    static void release(libvp::IVDEngineCore *) { made().reset(); }
};
