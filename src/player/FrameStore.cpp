#include "FrameStore.h"

namespace {

constexpr std::size_t keptAfterDelivery = 3;
constexpr int longestSide = 32767;

} // namespace

FrameStore::FrameStore(QImage::Format format)
    : m_format(format)
{
}

FrameStore::Frame FrameStore::keep(const unsigned char *pixels, int width, int height)
{
    if (!pixels || width <= 0 || height <= 0 || width > longestSide || height > longestSide)
        return {};
    QImage copy = QImage(pixels, width, height, width * 4, m_format).copy();
    if (copy.isNull())
        return {};
    Frame frame;
    frame.width = width;
    frame.height = height;
    frame.pixels = copy.bits();
    std::lock_guard lock(m_mutex);
    frame.ticket = ++m_lastTicket;
    m_entries.push_back({frame.ticket, std::move(copy)});
    return frame;
}

void FrameStore::delivered(quint64 ticket)
{
    std::lock_guard lock(m_mutex);
    while (m_entries.size() > keptAfterDelivery && m_entries.front().ticket <= ticket)
        m_entries.pop_front();
}

QImage FrameStore::last() const
{
    std::lock_guard lock(m_mutex);
    return m_entries.empty() ? QImage() : m_entries.back().image;
}

int FrameStore::count() const
{
    std::lock_guard lock(m_mutex);
    return static_cast<int>(m_entries.size());
}
