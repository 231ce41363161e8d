// Reads what a disc holds: titles, main title, type, name and size. The disc is a device, an image or a
// folder.
//
// Stateless. Waits for the disc. Broken structures read as no disc, or as a disc without titles.
#pragma once

#include "contract/VDRecords.h"
#include "contract/VDTypes.h"

#include <cstdint>
#include <string>
#include <vector>

struct DiscContents {
    libvp::VD_SourceForm form = libvp::VD_Source_File;
    std::uint32_t flags = 0;                // libvp::VD_SourceFlag
    std::vector<libvp::VDDiscTitle> titles; // numbers count from 1
    int mainTitle = 0;                      // number of the longest title, 0 without titles
    bool hasMenu = false;                   // a menu stands on the disc, whether it can be shown or not
};

class DiscReader final {
public:
    DiscReader() = delete;

    // False when the path holds no disc structure.
    [[nodiscard]] static bool read(const std::string &path, DiscContents &contents);

    // False when the path does not exist; a drive without a disc answers true with VD_DiscType_Empty.
    [[nodiscard]] static bool displayInfo(const std::string &path, libvp::VDDiscDisplayInfo &info);
};
