#include "FrameDecoder.h"

#include <cmath>
#include <limits>
#include <utility>

namespace {

constexpr std::int64_t MaxPixels = 8192LL * 8192;
// Less than the time between two frames of any source.
constexpr double Moment = 0.0001;

} // namespace

bool FrameDecoder::open(MediaInput &input, int stream)
{
    AVFormatContext *format = input.context();
    if (!format || stream < 0 || unsigned(stream) >= format->nb_streams)
        return false;
    m_input = &input;
    m_stream = format->streams[stream];
    const AVCodec *codec = avcodec_find_decoder(m_stream->codecpar->codec_id);
    if (!codec)
        return false;
    m_context.reset(avcodec_alloc_context3(codec));
    m_packet.reset(av_packet_alloc());
    if (!m_context || !m_packet || avcodec_parameters_to_context(m_context.get(), m_stream->codecpar) < 0)
        return false;
    m_context->pkt_timebase = m_stream->time_base;
    m_context->thread_count = 1;
    m_context->max_pixels = MaxPixels;
    m_draining = false;
    m_keyFramesOnly = false;
    return avcodec_open2(m_context.get(), codec, nullptr) >= 0;
}

void FrameDecoder::setKeyFramesOnly(bool on, bool draft)
{
    m_keyFramesOnly = on;
    if (!m_context)
        return;
    m_context->skip_frame = on ? AVDISCARD_NONKEY : AVDISCARD_DEFAULT;
    m_context->skip_loop_filter = on && draft ? AVDISCARD_ALL : AVDISCARD_DEFAULT;
}

void FrameDecoder::flush()
{
    if (m_context)
        avcodec_flush_buffers(m_context.get());
    m_draining = false;
}

AvFrame FrameDecoder::receive()
{
    AvFrame frame(av_frame_alloc());
    if (!frame || avcodec_receive_frame(m_context.get(), frame.get()) < 0)
        return nullptr;
    return frame;
}

bool FrameDecoder::readPacket()
{
    while (m_input->read(*m_packet)) {
        if (m_packet->stream_index == m_stream->index)
            return true;
    }
    return false;
}

// A decoder keeps a frame back until those that may be shown before it have come. With none but key frames
// that would be some groups of pictures later; told that nothing follows, it gives the frame at once.
AvFrame FrameDecoder::nextKeyFrame()
{
    while (!m_draining && !m_input->deadline().isOver()) {
        if (!readPacket()) {
            m_draining = true;
            break;
        }
        if (!(m_packet->flags & AV_PKT_FLAG_KEY))
            continue;
        AvFrame frame = decode(*m_packet);
        avcodec_flush_buffers(m_context.get());
        if (frame)
            return frame;
    }
    return nullptr;
}

AvFrame FrameDecoder::next()
{
    if (m_context && m_keyFramesOnly)
        return nextKeyFrame();
    while (m_context && !m_input->deadline().isOver()) {
        if (AvFrame frame = receive())
            return frame;
        if (m_draining)
            return nullptr;
        if (!readPacket()) {
            if (m_input->deadline().isOver())
                return nullptr;
            m_draining = true;
            avcodec_send_packet(m_context.get(), nullptr);
            continue;
        }
        // A packet that the decoder refuses is lost, not the stream.
        avcodec_send_packet(m_context.get(), m_packet.get());
    }
    return nullptr;
}

AvFrame FrameDecoder::decode(const AVPacket &packet)
{
    if (!m_context || avcodec_send_packet(m_context.get(), &packet) < 0)
        return nullptr;
    if (AvFrame frame = receive())
        return frame;
    avcodec_send_packet(m_context.get(), nullptr);
    return receive();
}

// What lies behind the frame that is wanted is read until the wanted time alone, and nothing before it is
// decoded: that costs far more than reading.
AvFrame FrameDecoder::keyFrameUntil(double &seconds, KeyFrame which)
{
    const AvPacket kept(av_packet_alloc());
    bool isFirst = true;
    while (m_context && kept && readPacket()) {
        const bool isKey = (m_packet->flags & AV_PKT_FLAG_KEY) != 0;
        if (std::exchange(isFirst, false))
            m_beganAtKeyFrame = isKey;
        const bool isBehind = secondsOf(*m_packet) > seconds;
        if (isKey && (!isBehind || (which == KeyFrame::Nearest && !kept->data))) {
            av_packet_unref(kept.get());
            av_packet_move_ref(kept.get(), m_packet.get());
        }
        if (isBehind || (which == KeyFrame::First && kept->data))
            break;
    }
    if (!kept || !kept->data)
        return nullptr;
    AvFrame frame = decode(*kept);
    avcodec_flush_buffers(m_context.get());
    if (!frame)
        seconds = std::fmin(seconds, secondsOf(*kept) - Moment);
    return frame;
}

double FrameDecoder::secondsOf(std::int64_t stamp) const
{
    if (stamp == AV_NOPTS_VALUE)
        return std::numeric_limits<double>::quiet_NaN();
    return double(stamp) * av_q2d(m_stream->time_base) - double(m_input->startTime()) / AV_TIME_BASE;
}

double FrameDecoder::secondsOf(const AVFrame &frame) const
{
    return secondsOf(frame.best_effort_timestamp != AV_NOPTS_VALUE ? frame.best_effort_timestamp : frame.pts);
}

double FrameDecoder::secondsOf(const AVPacket &packet) const
{
    return secondsOf(packet.pts != AV_NOPTS_VALUE ? packet.pts : packet.dts);
}
