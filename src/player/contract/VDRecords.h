// Plain records that cross the boundary between the player and the engine library.
//
// The layout is part of the contract. On 32-bit targets, where a library built elsewhere may fill them, it is
// checked byte for byte below; a 64-bit build keeps the order and lets pointers be pointers.
// All texts are UTF-8 and NUL-terminated inside their array.
#pragma once

#include <cstddef>
#include <cstdint>

// What is known of a source. Passed by value.
struct vdFileInfo {
    std::int32_t reserved0 = 0;
    std::int32_t mediaClass = 0; // libvp::VD_MediaClass
    std::int32_t sourceForm = 0; // libvp::VD_SourceForm; any other value counts as a file
    char codec[8] = {};          // lower-case codec name of the video, for instance "hevc"
    std::int32_t width = 0;      // pixels
    std::int32_t height = 0;     // pixels
    std::uint8_t audioOnly = 0;  // non-zero: no video but a cover picture at most
    std::uint32_t flags = 0;     // libvp::VD_SourceFlag
};

// How a play stopped. Passed by value.
struct vdStopPlayInfo {
    char path[2048] = {};                 // a single character is a drive letter
    std::int64_t positionMs = 0;          // milliseconds
    std::int64_t totalMs = 0;             // milliseconds
    std::uint8_t reachedEnd = 0;          // zero: it was stopped
    const unsigned char *image = nullptr; // last frame, 32-bit ARGB in the byte order of
                                          // QImage::Format_ARGB32, rows without padding; the engine's,
                                          // valid during the call alone
    std::int32_t imageWidth = 0;          // pixels
    std::int32_t imageHeight = 0;         // pixels
};

namespace libvp {

struct VDVideoInfo {
    std::int32_t reserved0[2] = {};
    std::int32_t height = 0; // pixels
    std::int32_t width = 0;  // pixels
    char reserved16[2240] = {};
    char codec[64] = {}; // codec name, lower case
};

// Also the record of one audio track.
struct VDAudioInfo {
    std::int32_t index = 0; // position in the track list, from 0
    std::int32_t channels = 0;
    std::int32_t sampleRate = 0; // hertz
    std::int32_t bitRate = 0;    // bits a second, 0 when unknown
    std::int32_t isDefault = 0;
    char language[128] = {}; // language code of the source, empty when unknown
    char name[2048] = {};    // title of the track
    char format[128] = {};   // codec and channel layout
};

// Also the record of one subtitle track.
struct VDSubtitleInfo {
    char language[128] = {};
    char name[2048] = {};
    std::uint8_t isExternal = 0; // a file beside the source or added by the user
    std::int32_t isBitmap = 0;   // pictures: style settings have no effect
};

// Decoded sound, as it is heard. Valid during the call alone.
struct VDPcmFrame {
    const unsigned char *samples = nullptr; // frameCount times bytesPerFrame bytes
    char reserved[64 - sizeof(void *)] = {};
    std::int32_t frameCount = 0;
    std::int32_t bytesPerFrame = 0; // of all channels together when they are interleaved
    std::int32_t isInterleaved = 0; // 1: channels is valid, else there is one channel
    std::int32_t channels = 0;
    std::int32_t sampleBits = 0;
    std::int32_t sampleRate = 0; // hertz
    std::int32_t sampleType = 0; // QAudioFormat::SampleType: 1 signed, 2 unsigned, 3 floating point
};

// A picture of a source, the engine's until IVDEngineCore::releasePicture().
struct VDPicture {
    const unsigned char *data = nullptr;
    std::int32_t size = 0;       // bytes
    std::int32_t width = 0;      // pixels
    std::int32_t height = 0;     // pixels
    std::int32_t format = -1;    // VD_PictureFormat; RGBA rows have no padding
    std::int32_t positionMs = 0; // where in the source it was taken
};

struct VDAudioDevice {
    char name[256] = {};          // what the user reads and the settings store
    std::int32_t connection = 0;  // VD_AudioConnection
    std::uint32_t capability = 0; // VD_AudioCapability
};

struct VDAudioDeviceList {
    std::int32_t count = 0;
    const VDAudioDevice *devices = nullptr;
};

struct VDDiscTitle {
    std::int32_t number = 0;     // what to open, as IVDPlayOptions::title tells it
    std::int32_t durationMs = 0; // milliseconds
    std::int32_t chapterCount = 0;
    char name[256] = {};
};

struct VDDiscDisplayInfo {
    std::int32_t discType = 0; // VD_DiscType
    std::int32_t hasMedia = 0;
    std::int64_t sizeBytes = 0; // of the whole disc, as a backup would write it
    char volumeName[256] = {};
};

struct VD3DCapabilities {
    std::uint32_t words[101] = {}; // word 0: bit n set when stereoscopic mode n can be shown
};

struct VDRegionRecord {
    std::int32_t dvdRegion = 1;
    std::int32_t bluRayRegion = 1;
    std::int32_t reserved8 = 2050;
    std::int32_t reserved12 = 1;
    std::int32_t reserved16 = 1;
    std::uint8_t reserved20 = 0;
};

// Offsets that hold for every target.
static_assert(sizeof(vdFileInfo) == 36 && offsetof(vdFileInfo, codec) == 12
                  && offsetof(vdFileInfo, width) == 20 && offsetof(vdFileInfo, height) == 24
                  && offsetof(vdFileInfo, audioOnly) == 28 && offsetof(vdFileInfo, flags) == 32,
              "vdFileInfo");
static_assert(offsetof(vdStopPlayInfo, positionMs) == 2048 && offsetof(vdStopPlayInfo, totalMs) == 2056
                  && offsetof(vdStopPlayInfo, reachedEnd) == 2064,
              "vdStopPlayInfo");
static_assert(offsetof(VDVideoInfo, height) == 8 && offsetof(VDVideoInfo, width) == 12
                  && offsetof(VDVideoInfo, codec) == 2256,
              "VDVideoInfo");
static_assert(offsetof(VDAudioInfo, language) == 20 && offsetof(VDAudioInfo, name) == 148
                  && offsetof(VDAudioInfo, format) == 2196,
              "VDAudioInfo");
static_assert(offsetof(VDSubtitleInfo, language) == 0 && offsetof(VDSubtitleInfo, name) == 128
                  && offsetof(VDSubtitleInfo, isExternal) == 2176
                  && offsetof(VDSubtitleInfo, isBitmap) == 2180,
              "VDSubtitleInfo");
static_assert(offsetof(VDPcmFrame, samples) == 0 && offsetof(VDPcmFrame, frameCount) == 64
                  && offsetof(VDPcmFrame, bytesPerFrame) == 68 && offsetof(VDPcmFrame, isInterleaved) == 72
                  && offsetof(VDPcmFrame, channels) == 76 && offsetof(VDPcmFrame, sampleBits) == 80
                  && offsetof(VDPcmFrame, sampleRate) == 84 && offsetof(VDPcmFrame, sampleType) == 88,
              "VDPcmFrame");
static_assert(sizeof(VD3DCapabilities) == 101 * 4, "VD3DCapabilities");
static_assert(offsetof(VDRegionRecord, reserved20) == 20, "VDRegionRecord");

// Offsets behind a pointer hold where a library of the 32-bit platform may fill the record.
static_assert(sizeof(void *) != 4
                  || (sizeof(vdStopPlayInfo) == 2080 && offsetof(vdStopPlayInfo, image) == 2068
                      && offsetof(vdStopPlayInfo, imageWidth) == 2072
                      && offsetof(vdStopPlayInfo, imageHeight) == 2076),
              "vdStopPlayInfo on 32-bit targets");

} // namespace libvp
