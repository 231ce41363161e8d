// Pictures of a source at points in time: a file, or a title of a disc.
//
// Used by one thread at a time, but for the deadline.
#pragma once

#include "ByteStream.h"
#include "Deadline.h"
#include "FrameDecoder.h"
#include "MediaInput.h"
#include "Picture.h"

#include <memory>
#include <string>

class VideoSource final {
public:
    // Null when there is no video, or it cannot be opened before the deadline. The deadline must outlive the
    // source. title: as openTitleStream() takes it.
    [[nodiscard]] static std::unique_ptr<VideoSource> open(const std::string &path, int title,
                                                           Deadline &deadline);
    VideoSource(const VideoSource &) = delete;
    VideoSource &operator=(const VideoSource &) = delete;

    // Seconds, 0 when unknown.
    [[nodiscard]] double duration() const;

    // The key frame at or before a time, or the frame shown at that time; RGBA, fitted into the box. False
    // when there is none before the deadline.
    bool grab(double seconds, bool exact, int width, int height, Picture &picture);

private:
    explicit VideoSource(Deadline &deadline)
        : m_deadline(deadline)
    {
    }
    bool openFile(const std::string &path);
    bool openTitle(const std::string &path, int title);
    bool beginInput(const std::string &path, const char *format);
    bool seekFile(double seconds);
    bool seekTitle(double &seconds);
    [[nodiscard]] bool isMuchLargerThan(int width, int height) const;
    AvFrame frameAt(double seconds, bool exact);
    AvFrame titleFrameAt(double seconds, bool exact);
    AvFrame keyFrameAt(double seconds);
    AvFrame exactFrameAt(double seconds);
    AvFrame lastFrameUntil(double target, AvFrame &late);

    Deadline &m_deadline;
    // Declared in this order: each uses the one before it.
    std::unique_ptr<ByteStream> m_stream;
    std::unique_ptr<MediaInput> m_input;
    std::unique_ptr<FrameDecoder> m_decoder;
    TitleStream *m_title{nullptr}; // m_stream, for a disc
    int m_index{-1};
    bool m_draft{false}; // the picture under way becomes much smaller
    double m_lead{0.0};  // seconds before the time wanted that a seek in a file without an index goes to
};
