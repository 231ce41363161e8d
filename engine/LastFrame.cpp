#include "LastFrame.h"

extern "C" {
#include <libswscale/swscale.h>
}

#include <algorithm>
#include <cmath>

namespace {

// Larger than any picture that a decoder gives.
constexpr std::int64_t largestSide = 32768;

} // namespace

LastFrame LastFrame::read(const MpvValue &answer, Order order)
{
    LastFrame frame;
    const std::int64_t width = answer.at("w").integer();
    const std::int64_t height = answer.at("h").integer();
    const std::int64_t stride = answer.at("stride").integer();
    const MpvBytes &data = answer.at("data").bytes();
    const std::string &format = answer.at("format").text();
    if (width <= 0 || height <= 0 || width > largestSide || height > largestSide || stride < width * 4
        || static_cast<std::int64_t>(data.size()) < stride * (height - 1) + width * 4
        || (format != "bgr0" && format != "bgra"))
        return frame;
    frame.width = static_cast<int>(width);
    frame.height = static_cast<int>(height);
    frame.pixels.resize(static_cast<std::size_t>(width * height * 4));
    unsigned char *out = frame.pixels.data();
    const std::size_t red = order == Order::Rgba ? 0 : 2;
    for (std::int64_t y = 0; y < height; ++y) {
        const unsigned char *in = data.data() + y * stride;
        for (std::int64_t x = 0; x < width; ++x, in += 4, out += 4) {
            out[2 - red] = in[0];
            out[1] = in[1];
            out[red] = in[2];
            out[3] = 255;
        }
    }
    return frame;
}

LastFrame LastFrame::scaledInto(int boxWidth, int boxHeight) const
{
    if (isNull() || boxWidth <= 0 || boxHeight <= 0)
        return *this;
    const double factor =
        std::min(boxWidth / static_cast<double>(width), boxHeight / static_cast<double>(height));
    LastFrame scaled;
    scaled.width = std::max(1, static_cast<int>(std::lround(width * factor)));
    scaled.height = std::max(1, static_cast<int>(std::lround(height * factor)));
    // The order of the colours does not matter for scaling.
    SwsContext *scaler = sws_getContext(width, height, AV_PIX_FMT_BGRA, scaled.width, scaled.height,
                                        AV_PIX_FMT_BGRA, SWS_AREA, nullptr, nullptr, nullptr);
    if (!scaler)
        return {};
    scaled.pixels.resize(static_cast<std::size_t>(scaled.width) * static_cast<std::size_t>(scaled.height)
                         * 4);
    const unsigned char *source[] = {pixels.data()};
    unsigned char *target[] = {scaled.pixels.data()};
    const int sourceStride[] = {width * 4};
    const int targetStride[] = {scaled.width * 4};
    sws_scale(scaler, source, sourceStride, 0, height, target, targetStride);
    sws_freeContext(scaler);
    return scaled;
}
