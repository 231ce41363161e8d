// A picture that stands for a source: a frame of a film, the cover of a piece of music, the poster of a
// folder.
//
// Stateless; may be used from several threads at once. Waits for the source, a few seconds at most.
#pragma once

#include "DriveTable.h"
#include "Picture.h"

#include <string>

class PictureGrabber final {
public:
    struct Request {
        std::string path;
        int width = 320;
        int height = 240;
    };

    PictureGrabber() = delete;

    // Reads a request from a JSON object. False for what is none, or names no source.
    [[nodiscard]] static bool parse(const char *json, Request &request);

    // JPEG, or RGBA where JPEG cannot be made. False when the source has no picture.
    [[nodiscard]] static bool grab(const Request &request, const DriveTable &drives, Picture &picture);
};
