// One source that pictures are taken from.
//
// grab() may be called from any thread, one picture at a time; cancel() from any thread at any time.
#pragma once

#include "Deadline.h"
#include "Picture.h"
#include "VideoSource.h"

#include <memory>
#include <mutex>
#include <string>

class ThumbnailSession final {
public:
    struct Request {
        std::string path;
        int titleNumber = 0; // 0 or less: the main title
        int width = 0;
        int height = 0;
        int startMs = 0; // pictures are taken from this range; an end of 0 is the end of the source
        int endMs = 0;
    };

    // Null when the source cannot be opened or has no video.
    [[nodiscard]] static std::shared_ptr<ThumbnailSession> open(const Request &request);

    // Waits for the decoder, five seconds at most. False when there is no picture.
    bool grab(int positionMs, bool exact, Picture &picture);
    // Ends a grab that is under way; all later ones fail.
    void cancel() { m_deadline.cancel(); }

private:
    ThumbnailSession() = default;

    Request m_request;
    Deadline m_deadline;
    std::mutex m_mutex;
    std::unique_ptr<VideoSource> m_source;
};
