// Any bytes as an NFO file: nothing crashes, and what is told stays within its bounds.
#include "Quiet.h"
#include "sidecars/NfoReader.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    keepQuiet();
    const auto records = NfoReader::read(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    for (const NfoRecord &record : records)
        if (record.season < -1 || record.episode < -1 || record.description.runtimeMinutes < 0)
            std::abort();
    return 0;
}
