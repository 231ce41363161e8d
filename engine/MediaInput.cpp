#include "MediaInput.h"

#include <algorithm>
#include <cctype>
#include <cstring>

namespace {

constexpr int IoBufferSize = 64 * 1024;
constexpr std::int64_t ProbeBytes = 5 * 1024 * 1024;
constexpr std::int64_t AnalyzeTime = 3 * AV_TIME_BASE;
constexpr int ErrorsInARow = 200;
// Nothing lasts thirty years: such a time stamp is broken, and sums with it would run over.
constexpr std::int64_t FarthestTime = std::int64_t(1000000000) * AV_TIME_BASE;

int refuseOpen(AVFormatContext *, AVIOContext **, const char *, int, AVDictionary **)
{
    return AVERROR(EPERM);
}

// The demuxer guesses by name where the content leaves it open, and some names have meanings of their own to
// it: it sees the ending alone.
std::string nameHint(const std::string &path)
{
    const std::size_t slash = path.find_last_of("/\\");
    const std::size_t dot = path.rfind('.');
    if (dot == std::string::npos || (slash != std::string::npos && dot < slash))
        return {};
    const std::string ending = path.substr(dot + 1);
    const bool plain = !ending.empty() && ending.size() <= 8
                       && std::all_of(ending.begin(), ending.end(),
                                      [](unsigned char c) { return c < 128 && std::isalnum(c); });
    return plain ? "source." + ending : std::string();
}

} // namespace

bool MediaInput::open(const std::string &path, const char *format)
{
    m_context.reset();
    auto *buffer = static_cast<unsigned char *>(av_malloc(IoBufferSize));
    if (!buffer)
        return false;
    const bool seekable = m_stream.size() >= 0;
    m_io.reset(avio_alloc_context(buffer, IoBufferSize, 0, this, &MediaInput::readBytes, nullptr,
                                  seekable ? &MediaInput::seekBytes : nullptr));
    if (!m_io) {
        av_free(buffer);
        return false;
    }
    m_io->seekable = seekable ? AVIO_SEEKABLE_NORMAL : 0;

    const AVInputFormat *demuxer = nullptr;
    if (format) {
        demuxer = av_find_input_format(format);
    } else {
        const std::string hint = nameHint(path);
        if (av_probe_input_buffer2(m_io.get(), &demuxer, hint.c_str(), nullptr, 0, 0) < 0)
            return false;
        // The demuxer of picture sequences opens its files itself; content alone finds one that does not.
        if (demuxer && (demuxer->flags & AVFMT_NOFILE)) {
            demuxer = nullptr;
            if (av_probe_input_buffer2(m_io.get(), &demuxer, "", nullptr, 0, 0) < 0)
                return false;
        }
    }
    if (!demuxer)
        return false;

    AVFormatContext *context = avformat_alloc_context();
    if (!context)
        return false;
    context->pb = m_io.get();
    context->io_open = refuseOpen;
    context->interrupt_callback = {&Deadline::interrupt, &m_deadline};
    context->probesize = ProbeBytes;
    context->max_analyze_duration = AnalyzeTime;
    context->fps_probe_size = 0;
    // Frees the context when it fails.
    if (avformat_open_input(&context, "", demuxer, nullptr) < 0)
        return false;
    m_context.reset(context);
    if (m_deadline.isOver() || avformat_find_stream_info(context, nullptr) < 0)
        return false;
    return context->nb_streams > 0 && !m_deadline.isOver();
}

int MediaInput::videoStream() const
{
    if (!m_context)
        return -1;
    const int best = av_find_best_stream(m_context.get(), AVMEDIA_TYPE_VIDEO, -1, -1, nullptr, 0);
    const auto isPicture = [&](int i) {
        return (m_context->streams[i]->disposition
                & (AV_DISPOSITION_ATTACHED_PIC | AV_DISPOSITION_TIMED_THUMBNAILS))
               != 0;
    };
    if (best >= 0 && !isPicture(best))
        return best;
    for (unsigned i = 0; i < m_context->nb_streams; ++i) {
        if (m_context->streams[i]->codecpar->codec_type == AVMEDIA_TYPE_VIDEO && !isPicture(int(i)))
            return int(i);
    }
    return -1;
}

int MediaInput::coverStream() const
{
    for (unsigned i = 0; m_context && i < m_context->nb_streams; ++i) {
        const AVStream *stream = m_context->streams[i];
        if ((stream->disposition & AV_DISPOSITION_ATTACHED_PIC) && stream->attached_pic.size > 0)
            return int(i);
    }
    return -1;
}

int MediaInput::audioStream() const
{
    return m_context
               ? std::max(-1, av_find_best_stream(m_context.get(), AVMEDIA_TYPE_AUDIO, -1, -1, nullptr, 0))
               : -1;
}

double MediaInput::duration() const
{
    if (!m_context || m_context->duration <= 0 || m_context->duration > FarthestTime)
        return 0.0;
    return double(m_context->duration) / AV_TIME_BASE;
}

std::int64_t MediaInput::startTime() const
{
    const std::int64_t start = m_context ? m_context->start_time : AV_NOPTS_VALUE;
    return start > -FarthestTime && start < FarthestTime ? start : 0;
}

void MediaInput::selectOnly(int stream)
{
    for (unsigned i = 0; m_context && i < m_context->nb_streams; ++i)
        m_context->streams[i]->discard = int(i) == stream ? AVDISCARD_DEFAULT : AVDISCARD_ALL;
}

bool MediaInput::read(AVPacket &packet)
{
    for (int errors = 0; errors < ErrorsInARow && !m_deadline.isOver(); ++errors) {
        av_packet_unref(&packet);
        const int result = av_read_frame(m_context.get(), &packet);
        if (result >= 0)
            return true;
        if (result == AVERROR_EOF || result == AVERROR_EXIT || (m_context->pb && avio_feof(m_context->pb)))
            return false;
    }
    return false;
}

int MediaInput::readBytes(void *opaque, std::uint8_t *buffer, int size)
{
    auto *self = static_cast<MediaInput *>(opaque);
    if (self->m_deadline.isOver())
        return AVERROR_EXIT;
    const std::int64_t count = self->m_stream.read(buffer, std::size_t(std::max(0, size)));
    if (count < 0)
        return AVERROR(EIO);
    self->m_position += count;
    return count == 0 ? AVERROR_EOF : int(count);
}

std::int64_t MediaInput::seekBytes(void *opaque, std::int64_t offset, int whence)
{
    auto *self = static_cast<MediaInput *>(opaque);
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return self->m_stream.size();
    case SEEK_SET:
        break;
    case SEEK_CUR:
        offset += self->m_position;
        break;
    case SEEK_END:
        offset += self->m_stream.size();
        break;
    default:
        return AVERROR(EINVAL);
    }
    const std::int64_t position = self->m_stream.seek(offset);
    if (position < 0)
        return AVERROR(EINVAL);
    self->m_position = position;
    return position;
}
