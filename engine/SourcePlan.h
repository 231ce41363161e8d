// Decides how a source is opened: what it is, whether it may be opened at all, and what libmpv is told. A
// plain value; make() waits for the file or the disc and may be left waiting on a thread of its own.
#pragma once

#include "MpvValue.h"

#include "contract/VDRecords.h"
#include "contract/VDTypes.h"

#include <string>
#include <vector>

// What IVDPlay::open() was asked for.
struct OpenRequest {
    std::string path;     // as the player gave it
    std::string resolved; // with a drive letter replaced by what stands behind it
    int itemType = libvp::VD_Item_Default;
    double startSeconds = 0;
    double endSeconds = 0;
    int title = 0; // from 1, 0 the main one
    int audio = libvp::VD_DefaultChoice;
    int subtitle = libvp::VD_DefaultChoice;
    int angle = libvp::VD_DefaultChoice;
    int chapter = -1; // from 1
    bool autoStart = true;
};

struct SourcePlan {
    libvp::VD_PlayError error = libvp::VD_PlayError_None;
    std::string url;       // for libmpv
    std::string localFile; // regular file behind the source, empty for discs and the network
    MpvMap options;        // of this source alone
    vdFileInfo info;       // class and form
    std::vector<libvp::VDDiscTitle> titles;
    int title = -1; // from 1, -1 without titles

    [[nodiscard]] static SourcePlan make(const OpenRequest &request);

    // Addresses that go to libmpv as they are; every other path is a file, whatever its name looks like.
    [[nodiscard]] static bool isNetworkAddress(const std::string &path);

    // Lists that would make libmpv open further files.
    [[nodiscard]] static bool isPlaylist(const std::string &path);
};
