#include "PictureScaler.h"

extern "C" {
#include <libavutil/display.h>
#include <libavutil/imgutils.h>
}

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

constexpr int BytesPerPixel = 4;
constexpr int JpegQuality = 4; // 2 is best, 31 worst
constexpr int LargestSide = 8192;

AvFrame makeFrame(AVPixelFormat format, int width, int height)
{
    AvFrame frame(av_frame_alloc());
    if (!frame)
        return nullptr;
    frame->format = format;
    frame->width = width;
    frame->height = height;
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        return nullptr;
    return frame;
}

bool convert(const AVFrame &from, AVFrame &to, int flags)
{
    AvSwsContext scaler(sws_getContext(from.width, from.height, AVPixelFormat(from.format), to.width,
                                       to.height, AVPixelFormat(to.format), flags, nullptr, nullptr,
                                       nullptr));
    if (!scaler)
        return false;
    // Without this every source would count as standard definition.
    const int *table = nullptr;
    switch (from.colorspace) {
    case AVCOL_SPC_BT709:
        table = sws_getCoefficients(SWS_CS_ITU709);
        break;
    case AVCOL_SPC_BT2020_NCL:
    case AVCOL_SPC_BT2020_CL:
        table = sws_getCoefficients(SWS_CS_BT2020);
        break;
    case AVCOL_SPC_UNSPECIFIED:
        table = sws_getCoefficients(from.height >= 720 ? SWS_CS_ITU709 : SWS_CS_ITU601);
        break;
    default:
        table = sws_getCoefficients(SWS_CS_ITU601);
        break;
    }
    sws_setColorspaceDetails(scaler.get(), table, from.color_range == AVCOL_RANGE_JPEG ? 1 : 0,
                             sws_getCoefficients(SWS_CS_ITU601), 1, 0, 1 << 16, 1 << 16);
    return sws_scale(scaler.get(), from.data, from.linesize, 0, from.height, to.data, to.linesize)
           == to.height;
}

// Size of the source as it is to be seen, before it is turned, fitted into the box.
bool fit(const AVFrame &frame, AVRational aspect, bool turned, int boxWidth, int boxHeight, int &width,
         int &height)
{
    if (frame.width <= 0 || frame.height <= 0 || boxWidth <= 0 || boxHeight <= 0)
        return false;
    if (turned)
        std::swap(boxWidth, boxHeight);
    double shownWidth = frame.width;
    const double shownHeight = frame.height;
    if (aspect.num > 0 && aspect.den > 0) {
        const double ratio = av_q2d(aspect);
        // Beyond that the header is broken, not the picture.
        if (ratio > 0.1 && ratio < 10.0)
            shownWidth *= ratio;
    }
    const double factor = std::min(
        {1.0, std::min(boxWidth, LargestSide) / shownWidth, std::min(boxHeight, LargestSide) / shownHeight});
    width = std::max(1, int(std::lround(shownWidth * factor)));
    height = std::max(1, int(std::lround(shownHeight * factor)));
    return true;
}

void turn(Picture &picture, int quarterTurns)
{
    if (quarterTurns == 0)
        return;
    const int width = picture.width;
    const int height = picture.height;
    const bool swapped = quarterTurns % 2 != 0;
    const int newWidth = swapped ? height : width;
    std::vector<unsigned char> turned(picture.bytes.size());
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int toX = quarterTurns == 1 ? height - 1 - y : quarterTurns == 2 ? width - 1 - x : y;
            const int toY = quarterTurns == 1 ? x : quarterTurns == 2 ? height - 1 - y : width - 1 - x;
            std::memcpy(
                &turned[(std::size_t(toY) * std::size_t(newWidth) + std::size_t(toX)) * BytesPerPixel],
                &picture.bytes[(std::size_t(y) * std::size_t(width) + std::size_t(x)) * BytesPerPixel],
                BytesPerPixel);
        }
    }
    picture.bytes = std::move(turned);
    if (swapped)
        std::swap(picture.width, picture.height);
}

} // namespace

bool PictureScaler::scale(const AVFrame &frame, AVRational sampleAspect, int quarterTurns, int width,
                          int height, Picture &picture)
{
    int toWidth = 0;
    int toHeight = 0;
    if (!fit(frame, sampleAspect, quarterTurns % 2 != 0, width, height, toWidth, toHeight))
        return false;
    const AvFrame target = makeFrame(AV_PIX_FMT_RGBA, toWidth, toHeight);
    if (!target || !convert(frame, *target, SWS_AREA))
        return false;
    const std::size_t row = std::size_t(toWidth) * BytesPerPixel;
    picture.bytes.resize(row * std::size_t(toHeight));
    for (int y = 0; y < toHeight; ++y)
        std::memcpy(&picture.bytes[std::size_t(y) * row],
                    target->data[0] + std::ptrdiff_t(y) * target->linesize[0], row);
    picture.width = toWidth;
    picture.height = toHeight;
    picture.format = libvp::VD_Picture_Rgba;
    turn(picture, quarterTurns);
    return true;
}

bool PictureScaler::compress(const Picture &rgba, Picture &jpeg)
{
    const AVCodec *codec = avcodec_find_encoder(AV_CODEC_ID_MJPEG);
    const AvFrame source = makeFrame(AV_PIX_FMT_RGBA, rgba.width, rgba.height);
    const AvFrame planes = makeFrame(AV_PIX_FMT_YUVJ420P, rgba.width, rgba.height);
    const AvPacket packet(av_packet_alloc());
    const AvCodecContext encoder(codec ? avcodec_alloc_context3(codec) : nullptr);
    if (!source || !planes || !packet || !encoder)
        return false;
    const std::size_t row = std::size_t(rgba.width) * BytesPerPixel;
    for (int y = 0; y < rgba.height; ++y)
        std::memcpy(source->data[0] + std::ptrdiff_t(y) * source->linesize[0],
                    &rgba.bytes[std::size_t(y) * row], row);
    if (!convert(*source, *planes, SWS_BILINEAR))
        return false;

    encoder->width = rgba.width;
    encoder->height = rgba.height;
    encoder->pix_fmt = AV_PIX_FMT_YUVJ420P;
    encoder->color_range = AVCOL_RANGE_JPEG;
    encoder->time_base = {1, 25};
    encoder->thread_count = 1;
    encoder->flags |= AV_CODEC_FLAG_QSCALE;
    encoder->global_quality = FF_QP2LAMBDA * JpegQuality;
    planes->quality = encoder->global_quality;
    planes->pts = 0;
    if (avcodec_open2(encoder.get(), codec, nullptr) < 0
        || avcodec_send_frame(encoder.get(), planes.get()) < 0
        || avcodec_send_frame(encoder.get(), nullptr) < 0
        || avcodec_receive_packet(encoder.get(), packet.get()) < 0)
        return false;
    jpeg.bytes.assign(packet->data, packet->data + packet->size);
    jpeg.width = rgba.width;
    jpeg.height = rgba.height;
    jpeg.format = libvp::VD_Picture_Jpeg;
    jpeg.positionMs = rgba.positionMs;
    return true;
}

double PictureScaler::contrast(const Picture &rgba)
{
    const std::size_t pixels = rgba.bytes.size() / BytesPerPixel;
    if (pixels == 0)
        return 0.0;
    double sum = 0.0;
    double squares = 0.0;
    for (std::size_t i = 0; i < pixels; ++i) {
        const unsigned char *pixel = &rgba.bytes[i * BytesPerPixel];
        const double luma = 0.299 * pixel[0] + 0.587 * pixel[1] + 0.114 * pixel[2];
        sum += luma;
        squares += luma * luma;
    }
    const double mean = sum / double(pixels);
    return std::sqrt(std::max(0.0, squares / double(pixels) - mean * mean));
}

int PictureScaler::quarterTurns(const AVStream &stream)
{
    const std::uint8_t *matrix = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, nullptr);
    if (!matrix)
        return 0;
    std::int32_t values[9];
    std::memcpy(values, matrix, sizeof(values));
    const double degrees = av_display_rotation_get(values);
    if (std::isnan(degrees))
        return 0;
    // The matrix tells how the picture is turned counter-clockwise to be shown.
    const int turns = int(std::lround(-degrees / 90.0)) % 4;
    return (turns + 4) % 4;
}
