// Texts made of the engine's records.
#pragma once

#include "contract/Orbix.h"

#include <QString>

#include <cstddef>

namespace PlayerText {

// A text of a record: UTF-8, and at most the array even when its end is missing.
[[nodiscard]] QString fixedText(const char *array, std::size_t size);
template<std::size_t Size>
[[nodiscard]] QString fixedText(const char (&array)[Size])
{
    return fixedText(array, Size);
}
// A text of an operation; null is empty.
[[nodiscard]] QString engineText(const char *text);

// Lines of the information overlay.
[[nodiscard]] QString video(const libvp::VDVideoInfo &info); // "HEVC 3840*2160"
[[nodiscard]] QString title(int title);                      // "None" for -1
[[nodiscard]] QString chapter(int current, int count);       // "2 / 5"
[[nodiscard]] QString time(int positionMs, int totalMs);     // "00:01:05 / 01:30:00"
[[nodiscard]] QString audio(const libvp::VDAudioInfo &info);
[[nodiscard]] QString subtitle(const libvp::VDSubtitleInfo &info);
[[nodiscard]] QString dynamicRange(int range); // "SDR", "HDR", "HDR->SDR"

// "ISO", "Folder", "Disc" or "file".
[[nodiscard]] QString fileType(const vdFileInfo &info);
// "UHD", "BD", "DVD", "4K", "HEVC", "VideoFile" or "Unknown".
[[nodiscard]] QString mediaType(const vdFileInfo &info);

} // namespace PlayerText
