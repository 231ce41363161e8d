#include "StreamFacts.h"

#include "RegularFile.h"
#include "TagText.h"

extern "C" {
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
#include <libavutil/log.h>
}

#include <algorithm>
#include <memory>

namespace {

constexpr int IoBufferSize = 32 * 1024;
constexpr unsigned int FormatBytes = 256 * 1024;
constexpr qint64 ProbeBytes = 1024 * 1024;
constexpr qint64 AnalyzeTime = AV_TIME_BASE / 2;
constexpr int MostStreams = 200;
constexpr int LongestHint = 8;
// Nothing lasts a year: such a length is broken.
constexpr qint64 LongestDuration = qint64(366) * 24 * 3600 * AV_TIME_BASE;

// The file as libavformat reads it. There is no other input: what a playlist in it names is not opened.
class FileInput final {
public:
    FileInput(const QString &path, const MediaDeadline &deadline)
        : m_deadline(deadline)
        , m_file(path)
    {
    }
    ~FileInput()
    {
        avformat_close_input(&m_context);
        if (m_io)
            av_freep(&m_io->buffer);
        avio_context_free(&m_io);
    }
    FileInput(const FileInput &) = delete;
    FileInput &operator=(const FileInput &) = delete;

    bool open(const QString &path);
    // Looks at packets where the header leaves something open.
    bool analyze();
    [[nodiscard]] const AVFormatContext *context() const { return m_context; }

private:
    [[nodiscard]] bool makeReader();
    [[nodiscard]] bool isComplete() const;
    static int readBytes(void *self, std::uint8_t *buffer, int size);
    static int64_t seekBytes(void *self, int64_t offset, int whence);
    static int refuseOpen(AVFormatContext *, AVIOContext **, const char *, int, AVDictionary **)
    {
        return AVERROR(EPERM);
    }

    const MediaDeadline &m_deadline;
    RegularFile m_file;
    qint64 m_position{0};
    AVIOContext *m_io{nullptr};
    AVFormatContext *m_context{nullptr};
};

// The demuxer guesses by name where the content leaves it open: it sees the ending alone.
QByteArray nameHint(const QString &path)
{
    const QByteArray ending = path.mid(path.lastIndexOf(QLatin1Char('.')) + 1).toUtf8();
    const bool plain = !ending.isEmpty() && ending.size() <= LongestHint
                       && std::all_of(ending.begin(), ending.end(),
                                      [](char c) { return uchar(c) < 0x80 && std::isalnum(uchar(c)); });
    return plain ? "source." + ending : QByteArray();
}

bool FileInput::makeReader()
{
    auto *buffer = static_cast<unsigned char *>(m_file.isOpen() ? av_malloc(IoBufferSize) : nullptr);
    if (!buffer)
        return false;
    m_io = avio_alloc_context(buffer, IoBufferSize, 0, this, &FileInput::readBytes, nullptr,
                              &FileInput::seekBytes);
    if (!m_io)
        av_free(buffer);
    return m_io;
}

bool FileInput::open(const QString &path)
{
    // What is wrong with a file is told by what comes back; a scan of many would fill the output.
    [[maybe_unused]] static const bool isQuiet = (av_log_set_level(AV_LOG_QUIET), true);
    if (!makeReader())
        return false;
    const AVInputFormat *format = nullptr;
    if (av_probe_input_buffer2(m_io, &format, nameHint(path).constData(), nullptr, 0, FormatBytes) < 0
        || !format || (format->flags & AVFMT_NOFILE) != 0)
        return false;
    AVFormatContext *context = avformat_alloc_context();
    if (!context)
        return false;
    context->pb = m_io;
    context->io_open = &FileInput::refuseOpen;
    context->interrupt_callback = {&MediaDeadline::interrupt, const_cast<MediaDeadline *>(&m_deadline)};
    context->probesize = ProbeBytes;
    context->max_analyze_duration = AnalyzeTime;
    context->max_streams = MostStreams;
    context->fps_probe_size = 0;
    AVDictionary *options = nullptr;
    av_dict_set(&options, "protocol_whitelist", "file", 0);
    // Frees the context when it fails.
    const bool opened = avformat_open_input(&context, "", format, &options) >= 0;
    av_dict_free(&options);
    if (opened)
        m_context = context;
    return opened;
}

bool FileInput::isComplete() const
{
    if (m_context->duration <= 0 || m_context->nb_streams == 0)
        return false;
    for (unsigned i = 0; i < m_context->nb_streams; ++i) {
        const AVCodecParameters *codec = m_context->streams[i]->codecpar;
        if (codec->codec_type == AVMEDIA_TYPE_VIDEO && (codec->width <= 0 || codec->height <= 0))
            return false;
    }
    return true;
}

bool FileInput::analyze()
{
    return isComplete() || (!m_deadline.isOver() && avformat_find_stream_info(m_context, nullptr) >= 0);
}

int FileInput::readBytes(void *self, std::uint8_t *buffer, int size)
{
    auto *input = static_cast<FileInput *>(self);
    if (input->m_deadline.isOver())
        return AVERROR_EXIT;
    const qint64 count = input->m_file.readAt(input->m_position, buffer, size);
    if (count < 0)
        return AVERROR(EIO);
    input->m_position += count;
    return count == 0 ? AVERROR_EOF : int(count);
}

int64_t FileInput::seekBytes(void *self, int64_t offset, int whence)
{
    auto *input = static_cast<FileInput *>(self);
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return input->m_file.size();
    case SEEK_SET:
        break;
    case SEEK_CUR:
        offset += input->m_position;
        break;
    case SEEK_END:
        offset += input->m_file.size();
        break;
    default:
        return AVERROR(EINVAL);
    }
    if (offset < 0)
        return AVERROR(EINVAL);
    input->m_position = offset;
    return offset;
}

QString entry(const AVDictionary *metadata, const char *key)
{
    const AVDictionaryEntry *found = av_dict_get(metadata, key, nullptr, 0);
    return found ? TagText::clean(QString::fromUtf8(found->value)) : QString();
}

void takeStream(StreamFacts &facts, const AVStream *stream)
{
    if (stream->codecpar->codec_type != AVMEDIA_TYPE_VIDEO)
        return;
    if ((stream->disposition & AV_DISPOSITION_ATTACHED_PIC) != 0) {
        const AVPacket &picture = stream->attached_pic;
        if (facts.picture.isEmpty() && picture.size > 0)
            facts.picture = QByteArray(reinterpret_cast<const char *>(picture.data), picture.size);
    } else if (facts.width == 0) {
        facts.width = stream->codecpar->width;
        facts.height = stream->codecpar->height;
    }
}

} // namespace

StreamFacts StreamFacts::read(const QString &path, const MediaDeadline &deadline)
{
    FileInput input(path, deadline);
    if (!input.open(path) || !input.analyze() || deadline.isOver())
        return {};
    StreamFacts facts;
    const AVFormatContext *context = input.context();
    facts.wasRead = context->nb_streams > 0;
    if (context->duration > 0 && context->duration < LongestDuration)
        facts.durationMs = context->duration / (AV_TIME_BASE / 1000);
    for (unsigned i = 0; i < context->nb_streams; ++i)
        takeStream(facts, context->streams[i]);
    facts.title = entry(context->metadata, "title");
    for (const char *key : {"date", "creation_time"}) {
        if (facts.date.isEmpty())
            facts.date = entry(context->metadata, key);
    }
    return facts;
}
