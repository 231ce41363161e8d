// Tells what a path is: a file, a disc in a drive, an image of one or a folder with its structure, and what
// stands in it.
//
// Stateless. Waits for the file or the disc, but never longer than a few seconds for a file, however broken.
// What is neither a regular file, a folder nor a block device is never opened.
#pragma once

#include "contract/VDRecords.h"
#include "contract/VDTypes.h"

#include <string>

class SourceProbe final {
public:
    SourceProbe() = delete;

    // Form of a source. VD_Source_File for all that is no disc, also for what does not exist; audio files are
    // told apart by describe() alone.
    [[nodiscard]] static libvp::VD_SourceForm form(const std::string &path);

    // Facts about a source, as far as they can be had: of a disc those of the title (number as in
    // VDDiscTitle::number, 0 or less for the main title). itemType is a VD_ItemType.
    [[nodiscard]] static vdFileInfo describe(const std::string &path, int itemType = libvp::VD_Item_Default,
                                             int title = 0);

    [[nodiscard]] static bool isDisc(libvp::VD_SourceForm form);
    [[nodiscard]] static bool isDvd(libvp::VD_SourceForm form);
    [[nodiscard]] static bool isBluRay(libvp::VD_SourceForm form);

    // Folder above VIDEO_TS or BDMV (or the folder that holds VIDEO_TS.IFO) for a disc folder, as the disc
    // libraries want it; any other path as it is.
    [[nodiscard]] static std::string discRoot(const std::string &path);
};
