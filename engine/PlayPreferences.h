// What the player has chosen for the picture and the extras of a play, beside the plain options of libmpv. A
// plain value with the contract's units.
#pragma once

#include <string>

struct PlayPreferences {
    int viewMode = 0;           // VD_ViewMode
    double zoom = 1.0;          // these three act in VD_View_Custom
    double pixelRatio = 1.0;    // factor on the source's display aspect
    double verticalShift = 0.0; // picture heights, positive down
    int rotation = 0;           // quarter turns, clockwise
    int flip = 0;               // bit 0 horizontal, bit 1 vertical
    int deinterlace = 1;        // 0 off, 1 automatic, 2 on

    bool hardwareDecoding = true;
    bool toneMap = true;
    int hdrMode = 0;
    int toneCurve = -1;
    int luminance = 50; // 0 to 100
    bool limitedRange = false;

    bool stereoEngine = false;
    int stereoOutput = 9; // 9 off
    int stereoInput = 0;  // 0 detect
    bool rightViewFirst = false;

    bool pcmTap = false;
    bool informationOverlay = false;
    bool subtitlesAllowed = true; // false: none show unless asked for
    bool subtitleFiles = false;   // open those that belong to a source
    std::string subtitleFolder;   // looked through for them as well
    int subtitleCodePage = 0;     // of Windows, 0 is found out for each file
    std::string customShader;     // absolute path
};
