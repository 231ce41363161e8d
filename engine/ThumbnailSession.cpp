#include "ThumbnailSession.h"

#include <algorithm>
#include <chrono>

namespace {

constexpr std::chrono::milliseconds PictureTime{5000};

} // namespace

std::shared_ptr<ThumbnailSession> ThumbnailSession::open(const Request &request)
{
    if (request.width <= 0 || request.height <= 0)
        return nullptr;
    std::shared_ptr<ThumbnailSession> session(new ThumbnailSession);
    session->m_request = request;
    session->m_deadline.start(PictureTime);
    session->m_source = VideoSource::open(request.path, request.titleNumber, session->m_deadline);
    return session->m_source ? session : nullptr;
}

bool ThumbnailSession::grab(int positionMs, bool exact, Picture &picture)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    if (m_deadline.isCancelled())
        return false;
    m_deadline.start(PictureTime);
    int position = std::max(positionMs, m_request.startMs);
    if (m_request.endMs > m_request.startMs)
        position = std::min(position, m_request.endMs);
    return m_source->grab(position / 1000.0, exact, m_request.width, m_request.height, picture);
}
