#include "PcmTap.h"

#include "ByteStream.h"
#include "Deadline.h"
#include "EngineLog.h"
#include "FrameDecoder.h"
#include "MediaInput.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace {

constexpr std::chrono::milliseconds LongestWait{100};
constexpr std::chrono::milliseconds ShortestWait{2};
constexpr std::chrono::milliseconds ReadTime{5000};
constexpr double JumpSeconds = 0.5;
constexpr int SignedInteger = 1;
constexpr int FloatingPoint = 3;

} // namespace

class PcmTap::Worker {
public:
    Worker(std::string source, int stream, Clock clock, Sink sink)
        : m_source(std::move(source))
        , m_streamIndex(stream)
        , m_clock(std::move(clock))
        , m_sink(std::move(sink))
        , m_thread([this] { run(); })
    {
    }

    ~Worker()
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_stop = true;
        }
        m_deadline.cancel();
        m_wake.notify_all();
        m_thread.join();
    }

private:
    void run()
    {
        try {
            if (open())
                follow();
            else if (!m_deadline.isCancelled())
                engineLog("[Sound] no second decoder for %s", m_source.c_str());
        } catch (const std::exception &error) {
            engineLog("[Sound] %s", error.what());
        }
    }

    bool open()
    {
        m_deadline.start(ReadTime);
        if (!m_stream.open(m_source) || !m_input.open(m_source))
            return false;
        const int index = m_streamIndex >= 0 ? m_streamIndex : m_input.audioStream();
        const AVFormatContext *context = m_input.context();
        if (index < 0 || unsigned(index) >= context->nb_streams
            || context->streams[index]->codecpar->codec_type != AVMEDIA_TYPE_AUDIO
            || !m_decoder.open(m_input, index))
            return false;
        m_streamIndex = index;
        m_input.selectOnly(index);
        return true;
    }

    // False once the tap ends.
    bool wait(std::chrono::milliseconds time)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_wake.wait_for(lock, time, [this] { return m_stop; });
        return !m_stop;
    }

    bool isStopped()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_stop;
    }

    void follow()
    {
        double position = 0.0; // where the next block begins
        bool atEnd = false;
        AvFrame block;
        while (!isStopped()) {
            const double now = m_clock();
            if (std::isnan(now)) {
                if (!wait(LongestWait))
                    return;
                continue;
            }
            const bool jumped = now > position + JumpSeconds || now < position - JumpSeconds;
            if (jumped && (!atEnd || now < position)) {
                seek(now);
                position = now;
                atEnd = false;
                block.reset();
            }
            if (!block && !atEnd) {
                m_deadline.start(ReadTime);
                block = m_decoder.next();
                atEnd = !block;
                if (block) {
                    const double time = m_decoder.secondsOf(*block);
                    position = std::isnan(time) ? position : time;
                }
                // After a seek the first blocks may lie before the clock: nobody hears them.
                if (block && position + lengthOf(*block) < now - JumpSeconds) {
                    position += lengthOf(*block);
                    block.reset();
                    continue;
                }
            }
            if (block && position <= now) {
                deliver(*block);
                position += lengthOf(*block);
                block.reset();
                continue;
            }
            const double ahead = atEnd ? 1.0 : position - now;
            const auto time =
                std::chrono::milliseconds(static_cast<int>(std::clamp(ahead, 0.0, 1.0) * 1000.0));
            if (!wait(std::clamp(time, ShortestWait, LongestWait)))
                return;
        }
    }

    static double lengthOf(const AVFrame &block)
    {
        return block.sample_rate > 0 ? double(block.nb_samples) / block.sample_rate : 0.0;
    }

    void seek(double seconds)
    {
        m_deadline.start(ReadTime);
        AVFormatContext *context = m_input.context();
        const std::int64_t target = m_input.startTime() + std::int64_t(std::max(0.0, seconds) * AV_TIME_BASE);
        const AVRational unit = context->streams[m_streamIndex]->time_base;
        av_seek_frame(context, m_streamIndex, av_rescale_q(target, {1, AV_TIME_BASE}, unit),
                      AVSEEK_FLAG_BACKWARD);
        m_decoder.flush();
    }

    bool prepare(AVFrame &block)
    {
        const auto format = AVSampleFormat(block.format);
        if (m_resampler && format == m_format && block.sample_rate == m_rate
            && block.ch_layout.nb_channels == m_channels)
            return true;
        m_resampler.reset();
        m_output =
            av_get_packed_sample_fmt(format) == AV_SAMPLE_FMT_S16 ? AV_SAMPLE_FMT_S16 : AV_SAMPLE_FMT_FLT;
        SwrContext *resampler = nullptr;
        if (swr_alloc_set_opts2(&resampler, &block.ch_layout, m_output, block.sample_rate, &block.ch_layout,
                                format, block.sample_rate, 0, nullptr)
            < 0)
            return false;
        m_resampler.reset(resampler);
        m_format = format;
        m_rate = block.sample_rate;
        m_channels = block.ch_layout.nb_channels;
        return swr_init(resampler) >= 0;
    }

    void deliver(AVFrame &block)
    {
        if (block.nb_samples <= 0 || block.sample_rate <= 0 || block.ch_layout.nb_channels <= 0)
            return;
        if (!prepare(block)) {
            m_resampler.reset();
            return;
        }
        const int sampleBytes = av_get_bytes_per_sample(m_output);
        m_samples.resize(std::size_t(block.nb_samples) * std::size_t(m_channels) * std::size_t(sampleBytes));
        std::uint8_t *out = m_samples.data();
        const int count =
            swr_convert(m_resampler.get(), &out, block.nb_samples,
                        const_cast<const std::uint8_t **>(block.extended_data), block.nb_samples);
        if (count <= 0)
            return;
        libvp::VDPcmFrame frame;
        frame.samples = m_samples.data();
        frame.frameCount = count;
        frame.bytesPerFrame = m_channels * sampleBytes;
        frame.isInterleaved = 1;
        frame.channels = m_channels;
        frame.sampleBits = sampleBytes * 8;
        frame.sampleRate = m_rate;
        frame.sampleType = m_output == AV_SAMPLE_FMT_S16 ? SignedInteger : FloatingPoint;
        m_sink(frame);
    }

    const std::string m_source;
    int m_streamIndex;
    const Clock m_clock;
    const Sink m_sink;

    Deadline m_deadline;
    FileStream m_stream;
    MediaInput m_input{m_stream, m_deadline};
    FrameDecoder m_decoder;
    AvSwrContext m_resampler;
    AVSampleFormat m_format{AV_SAMPLE_FMT_NONE};
    AVSampleFormat m_output{AV_SAMPLE_FMT_S16};
    int m_rate{0};
    int m_channels{0};
    std::vector<std::uint8_t> m_samples;

    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_stop{false};
    std::thread m_thread; // last: it uses all the others
};

PcmTap::PcmTap(std::string source, int ffAudioStreamIndex, Clock clockSeconds, Sink sink)
    : m_worker(std::make_unique<Worker>(std::move(source), ffAudioStreamIndex, std::move(clockSeconds),
                                        std::move(sink)))
{
}

PcmTap::~PcmTap() = default;
