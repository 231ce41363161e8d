// A finished picture: pixels or a compressed file, with its measures.
#pragma once

#include "contract/VDTypes.h"

#include <vector>

struct Picture {
    std::vector<unsigned char> bytes;
    int width = 0;
    int height = 0;
    libvp::VD_PictureFormat format = libvp::VD_Picture_Rgba;
    int positionMs = 0;
};
