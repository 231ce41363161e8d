// A sound library with one of the engine's two exports.
#if defined(_WIN32)
extern "C" __declspec(dllexport) void *CreateVDPlayer(void *, void *)
#else
extern "C" __attribute__((visibility("default"))) void *CreateVDPlayer(void *, void *)
#endif
{
    return nullptr;
}
