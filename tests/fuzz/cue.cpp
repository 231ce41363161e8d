// Any bytes as a CUE sheet: nothing crashes, every track has a place and a file without folders.
#include "Quiet.h"
#include "sidecars/CueSheet.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    keepQuiet();
    const CueSheet sheet = CueSheet::parse(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    for (const CueTrack &track : sheet.tracks) {
        const bool ordered = track.endFrame < 0 || track.endFrame > track.startFrame;
        if (track.startFrame < 0 || !ordered || track.fileName.isEmpty()
            || track.fileName.contains(QLatin1Char('/')))
            std::abort();
    }
    return 0;
}
