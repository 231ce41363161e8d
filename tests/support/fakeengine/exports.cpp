// The exports of the engine library, and that of its remote control.
#include "FakeState.h"

#if defined(_WIN32)
#define FAKE_EXPORT extern "C" __declspec(dllexport)
#else
#define FAKE_EXPORT extern "C" __attribute__((visibility("default")))
#endif

FAKE_EXPORT libvp::IVDEngineCore *CreateVDPlayer(libvp::IVDPlayerConfig *config,
                                                 libvp::IVDOrbixCallback *callback)
{
    return FakeState::instance().create(config, callback);
}

FAKE_EXPORT void ReleaseVDPlayer(libvp::IVDEngineCore *core)
{
    FakeState::instance().destroy(core);
}

FAKE_EXPORT FakeEngine *fakeEngine()
{
    return &FakeState::instance();
}
