#include "KeyFrameLoop.h"

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}

namespace {

constexpr int BytesPerPixel = 4;
constexpr int Milliseconds = 1000;

} // namespace

KeyFrameLoop::~KeyFrameLoop()
{
    sws_freeContext(m_scaler);
    av_packet_free(&m_packet);
    av_frame_free(&m_frame);
    avcodec_free_context(&m_decoder);
    avformat_close_input(&m_input);
}

bool KeyFrameLoop::open(const std::string &path)
{
    if (avformat_open_input(&m_input, path.c_str(), nullptr, nullptr) < 0
        || avformat_find_stream_info(m_input, nullptr) < 0)
        return false;
    const AVCodec *codec = nullptr;
    m_stream = av_find_best_stream(m_input, AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
    if (m_stream < 0 || !codec)
        return false;
    m_decoder = avcodec_alloc_context3(codec);
    m_frame = av_frame_alloc();
    m_packet = av_packet_alloc();
    if (!m_decoder || !m_frame || !m_packet
        || avcodec_parameters_to_context(m_decoder, m_input->streams[m_stream]->codecpar) < 0)
        return false;
    m_decoder->thread_count = 1;
    m_decoder->skip_frame = AVDISCARD_NONKEY;
    return avcodec_open2(m_decoder, codec, nullptr) >= 0;
}

bool KeyFrameLoop::grab(int positionMs, std::vector<std::uint8_t> &pixels)
{
    const std::int64_t target =
        av_rescale_q(positionMs, {1, Milliseconds}, m_input->streams[m_stream]->time_base);
    if (av_seek_frame(m_input, m_stream, target, AVSEEK_FLAG_BACKWARD) < 0)
        return false;
    avcodec_flush_buffers(m_decoder);
    bool isDecoded = false;
    while (!isDecoded && av_read_frame(m_input, m_packet) >= 0) {
        if (m_packet->stream_index == m_stream && (m_packet->flags & AV_PKT_FLAG_KEY)) {
            // Told that nothing follows, the decoder keeps no frame back.
            isDecoded = avcodec_send_packet(m_decoder, m_packet) >= 0
                        && avcodec_send_packet(m_decoder, nullptr) >= 0
                        && avcodec_receive_frame(m_decoder, m_frame) >= 0;
        }
        av_packet_unref(m_packet);
    }
    if (!isDecoded)
        return false;
    m_scaler = sws_getCachedContext(m_scaler, m_frame->width, m_frame->height, AVPixelFormat(m_frame->format),
                                    m_width, m_height, AV_PIX_FMT_RGBA, SWS_AREA, nullptr, nullptr, nullptr);
    pixels.resize(std::size_t(m_width) * std::size_t(m_height) * BytesPerPixel);
    std::uint8_t *const rows[4] = {pixels.data(), nullptr, nullptr, nullptr};
    const int steps[4] = {m_width * BytesPerPixel, 0, 0, 0};
    return m_scaler
           && sws_scale(m_scaler, m_frame->data, m_frame->linesize, 0, m_frame->height, rows, steps) > 0;
}
