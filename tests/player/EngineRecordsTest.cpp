// The layout of what crosses the boundary to the engine.
#include "contract/Orbix.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace {

struct Offset {
    const char *field;
    std::size_t found;
    std::size_t wanted;
};

void expectOffsets(std::initializer_list<Offset> rows)
{
    for (const Offset &row : rows)
        EXPECT_EQ(row.found, row.wanted) << row.field;
}

} // namespace

TEST(EngineRecords, FileInfoHas36BytesAsToldByTheContract)
{
    EXPECT_EQ(sizeof(vdFileInfo), 36U);
    expectOffsets({{"reserved", offsetof(vdFileInfo, reserved0), 0},
                   {"media class", offsetof(vdFileInfo, mediaClass), 4},
                   {"source form", offsetof(vdFileInfo, sourceForm), 8},
                   {"codec", offsetof(vdFileInfo, codec), 12},
                   {"width", offsetof(vdFileInfo, width), 20},
                   {"height", offsetof(vdFileInfo, height), 24},
                   {"audio only", offsetof(vdFileInfo, audioOnly), 28},
                   {"flags", offsetof(vdFileInfo, flags), 32}});
    EXPECT_EQ(sizeof(vdFileInfo::codec), 8U);
}

TEST(EngineRecords, StopInfoKeepsItsOrder)
{
    expectOffsets({{"path", offsetof(vdStopPlayInfo, path), 0},
                   {"position", offsetof(vdStopPlayInfo, positionMs), 2048},
                   {"total", offsetof(vdStopPlayInfo, totalMs), 2056},
                   {"reached end", offsetof(vdStopPlayInfo, reachedEnd), 2064}});
    EXPECT_EQ(sizeof(vdStopPlayInfo::path), 2048U);
    EXPECT_GT(offsetof(vdStopPlayInfo, image), offsetof(vdStopPlayInfo, reachedEnd));
    EXPECT_EQ(offsetof(vdStopPlayInfo, imageWidth), offsetof(vdStopPlayInfo, image) + sizeof(void *));
    EXPECT_EQ(offsetof(vdStopPlayInfo, imageHeight), offsetof(vdStopPlayInfo, imageWidth) + 4);
    if (sizeof(void *) == 4) {
        EXPECT_EQ(sizeof(vdStopPlayInfo), 2080U);
    }
}

TEST(EngineRecords, TrackInfosStandAtTheirOffsets)
{
    using namespace libvp;
    expectOffsets({{"video height", offsetof(VDVideoInfo, height), 8},
                   {"video width", offsetof(VDVideoInfo, width), 12},
                   {"video codec", offsetof(VDVideoInfo, codec), 2256},
                   {"audio language", offsetof(VDAudioInfo, language), 20},
                   {"audio name", offsetof(VDAudioInfo, name), 148},
                   {"audio format", offsetof(VDAudioInfo, format), 2196},
                   {"subtitle language", offsetof(VDSubtitleInfo, language), 0},
                   {"subtitle name", offsetof(VDSubtitleInfo, name), 128},
                   {"subtitle byte", offsetof(VDSubtitleInfo, isExternal), 2176},
                   {"subtitle int", offsetof(VDSubtitleInfo, isBitmap), 2180}});
}

TEST(EngineRecords, PcmFrameStandsAtItsOffsets)
{
    using libvp::VDPcmFrame;
    expectOffsets({{"samples", offsetof(VDPcmFrame, samples), 0},
                   {"frames", offsetof(VDPcmFrame, frameCount), 64},
                   {"bytes a frame", offsetof(VDPcmFrame, bytesPerFrame), 68},
                   {"interleaved", offsetof(VDPcmFrame, isInterleaved), 72},
                   {"channels", offsetof(VDPcmFrame, channels), 76},
                   {"bits", offsetof(VDPcmFrame, sampleBits), 80},
                   {"rate", offsetof(VDPcmFrame, sampleRate), 84},
                   {"type", offsetof(VDPcmFrame, sampleType), 88}});
}

TEST(EngineRecords, RegionRecordHasSevenFieldsAndItsDefaults)
{
    const libvp::VDRegionRecord record;
    EXPECT_EQ(record.dvdRegion, 1);
    EXPECT_EQ(record.bluRayRegion, 1);
    EXPECT_EQ(record.reserved8, 2050);
    EXPECT_EQ(record.reserved12, 1);
    EXPECT_EQ(record.reserved16, 1);
    EXPECT_EQ(record.reserved20, 0);
    EXPECT_EQ(offsetof(libvp::VDRegionRecord, reserved20), 20U);
    EXPECT_EQ(sizeof(libvp::VD3DCapabilities), 404U);
}
