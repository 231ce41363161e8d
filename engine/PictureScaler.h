// Turns decoded frames into pictures: scaled into a box with the ratio kept, upright, as RGBA or JPEG.
//
// Stateless.
#pragma once

#include "AvPointers.h"
#include "Picture.h"

class PictureScaler final {
public:
    PictureScaler() = delete;

    // RGBA of at most width by height pixels, never larger than the source. quarterTurns: clockwise turns
    // that put the picture upright. False for a frame that cannot be converted.
    [[nodiscard]] static bool scale(const AVFrame &frame, AVRational sampleAspect, int quarterTurns,
                                    int width, int height, Picture &picture);

    // The same pixels as a JPEG file. False where no encoder is at hand.
    [[nodiscard]] static bool compress(const Picture &rgba, Picture &jpeg);

    // How far the brightness spreads, 0 for one plain colour, up to 127.
    [[nodiscard]] static double contrast(const Picture &rgba);

    // Clockwise quarter turns that a stream asks for.
    [[nodiscard]] static int quarterTurns(const AVStream &stream);
};
