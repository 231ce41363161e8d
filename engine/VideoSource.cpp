#include "VideoSource.h"

#include "PictureScaler.h"
#include "SourceProbe.h"
#include "TitleStreams.h"

#include <algorithm>
#include <cmath>

namespace {

// Positions are told in milliseconds of 31 bits.
constexpr double FarthestSeconds = 2.0e6;
// Two time stamps of one moment may differ by the rounding of their units.
constexpr double SameMoment = 0.0015;
// How far before the time wanted a frame is sought, in seconds.
constexpr double StepsBack[] = {0.0, 1.0, 3.0, 10.0, 30.0, 1e9};
constexpr double FirstBack = 1.0;
constexpr double BackFactor = 3.0;
// Frames are read before they are shown, and seeks without an index go by the former: the first frame lies
// before the beginning.
constexpr double BeforeStart = -1.0;
constexpr double LeadSlack = 0.25;
constexpr double MostLead = 10.0;
// What becomes this much smaller shows no edges of its blocks.
constexpr int MuchSmaller = 3;

} // namespace

std::unique_ptr<VideoSource> VideoSource::open(const std::string &path, int title, Deadline &deadline)
{
    std::unique_ptr<VideoSource> source(new VideoSource(deadline));
    const bool isDisc = SourceProbe::isDisc(SourceProbe::form(path));
    if (isDisc ? !source->openTitle(path, title) : !source->openFile(path))
        return nullptr;
    return source;
}

bool VideoSource::openFile(const std::string &path)
{
    auto file = std::make_unique<FileStream>();
    if (!file->open(path))
        return false;
    m_stream = std::move(file);
    return beginInput(path, nullptr);
}

bool VideoSource::openTitle(const std::string &path, int title)
{
    std::unique_ptr<TitleStream> stream = openTitleStream(path, title);
    if (!stream)
        return false;
    m_title = stream.get();
    m_stream = std::move(stream);
    return beginInput(path, m_title->format());
}

bool VideoSource::beginInput(const std::string &path, const char *format)
{
    m_decoder.reset();
    m_input = std::make_unique<MediaInput>(*m_stream, m_deadline);
    if (!m_input->open(path, format))
        return false;
    m_index = m_input->videoStream();
    m_decoder = std::make_unique<FrameDecoder>();
    if (m_index < 0 || !m_decoder->open(*m_input, m_index))
        return false;
    m_input->selectOnly(m_index);
    return true;
}

double VideoSource::duration() const
{
    return m_title ? m_title->duration() : m_input->duration();
}

bool VideoSource::seekFile(double seconds)
{
    AVFormatContext *context = m_input->context();
    const std::int64_t target = m_input->startTime() + std::int64_t(seconds * AV_TIME_BASE);
    m_decoder->flush();
    const AVRational unit = context->streams[m_index]->time_base;
    if (av_seek_frame(context, m_index, av_rescale_q(target, {1, AV_TIME_BASE}, unit), AVSEEK_FLAG_BACKWARD)
        >= 0)
        return true;
    // Some demuxers only find the beginning again.
    return avformat_seek_file(context, -1, INT64_MIN, target, target, 0) >= 0
           || av_seek_frame(context, m_index, 0, AVSEEK_FLAG_BACKWARD | AVSEEK_FLAG_BYTE) >= 0
           || seconds <= 0.0;
}

bool VideoSource::seekTitle(double &seconds)
{
    // The time stamps of a disc start anew at any cell or clip: what counts is the time since the entry
    // point.
    const double entry = m_title->seekSeconds(std::max(0.0, seconds));
    if (entry < 0 || !beginInput({}, m_title->format()))
        return false;
    seconds = std::max(0.0, seconds - entry);
    return true;
}

AvFrame VideoSource::lastFrameUntil(double target, AvFrame &late)
{
    AvFrame best;
    while (AvFrame frame = m_decoder->next()) {
        const double time = m_decoder->secondsOf(*frame);
        if (!std::isnan(time) && time > target + SameMoment) {
            late = std::move(frame);
            break;
        }
        best = std::move(frame);
        if (time >= target - SameMoment)
            break;
    }
    return best;
}

AvFrame VideoSource::titleFrameAt(double seconds, bool exact)
{
    double target = seconds;
    if (!seekTitle(target))
        return nullptr;
    m_decoder->setKeyFramesOnly(!exact, m_draft);
    if (!exact)
        return m_decoder->next();
    AvFrame late;
    AvFrame frame = lastFrameUntil(target, late);
    return frame ? std::move(frame) : std::move(late);
}

// Where a file has no index, a seek lands anywhere before the time, and the next key frame may be behind it:
// it is sought from further and further back. How far was enough is where the next search begins.
AvFrame VideoSource::keyFrameAt(double seconds)
{
    m_decoder->setKeyFramesOnly(true, m_draft);
    double until = seconds + SameMoment;
    double back = m_lead;
    while (!m_deadline.isOver()) {
        const double from = std::max(BeforeStart, seconds - back);
        if (!seekFile(from))
            return nullptr;
        const auto which = from <= BeforeStart ? FrameDecoder::KeyFrame::Nearest
                           : back > 0.0        ? FrameDecoder::KeyFrame::Last
                                               : FrameDecoder::KeyFrame::First;
        if (AvFrame frame = m_decoder->keyFrameUntil(until, which)) {
            if (back > 0.0 && !m_decoder->beganAtKeyFrame()) {
                const double enough = seconds - m_decoder->secondsOf(*frame) + LeadSlack;
                m_lead = std::max(m_lead, std::fmin(enough, MostLead));
            }
            return frame;
        }
        if (from <= BeforeStart)
            return nullptr;
        back = std::max(back * BackFactor, FirstBack);
    }
    return nullptr;
}

AvFrame VideoSource::exactFrameAt(double seconds)
{
    m_decoder->setKeyFramesOnly(false);
    AvFrame late;
    for (const double back : StepsBack) {
        const double from = std::max(BeforeStart, seconds - back);
        if (m_deadline.isOver() || !seekFile(from))
            break;
        if (AvFrame frame = lastFrameUntil(seconds, late))
            return frame;
        if (from <= BeforeStart)
            break;
    }
    return late;
}

AvFrame VideoSource::frameAt(double seconds, bool exact)
{
    if (m_title)
        return titleFrameAt(seconds, exact);
    // Nothing is behind the end, and the way back from there would be long.
    if (const double end = duration(); end > 0.0)
        seconds = std::min(seconds, end);
    return exact ? exactFrameAt(seconds) : keyFrameAt(seconds);
}

bool VideoSource::isMuchLargerThan(int width, int height) const
{
    // After a seek in a disc that failed there is no input.
    if (m_index < 0 || !m_input->context())
        return false;
    const AVCodecParameters *coded = m_input->context()->streams[m_index]->codecpar;
    return coded->width / MuchSmaller >= width && coded->height / MuchSmaller >= height;
}

bool VideoSource::grab(double seconds, bool exact, int width, int height, Picture &picture)
{
    m_draft = isMuchLargerThan(width, height);
    seconds = std::clamp(seconds, 0.0, FarthestSeconds);
    AvFrame frame = frameAt(seconds, exact);
    // Streams that refresh bit by bit mark no frame as a key frame, and a broken first one has none before
    // it.
    if (!frame && !exact && !m_deadline.isOver())
        frame = frameAt(seconds, true);
    if (!frame)
        return false;
    AVStream *stream = m_input->context()->streams[m_index];
    const AVRational aspect = av_guess_sample_aspect_ratio(m_input->context(), stream, frame.get());
    if (!PictureScaler::scale(*frame, aspect, PictureScaler::quarterTurns(*stream), width, height, picture))
        return false;
    const double time = m_title ? seconds : m_decoder->secondsOf(*frame);
    const double shown = std::isnan(time) ? seconds : std::clamp(time, 0.0, FarthestSeconds);
    picture.positionMs = int(std::lround(shown * 1000.0));
    return true;
}
