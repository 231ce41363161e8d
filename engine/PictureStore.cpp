#include "PictureStore.h"

const libvp::VDPicture *PictureStore::add(Picture picture)
{
    auto entry = std::make_unique<Entry>();
    entry->picture = std::move(picture);
    const Picture &kept = entry->picture;
    entry->record.data = kept.bytes.data();
    entry->record.size = static_cast<std::int32_t>(kept.bytes.size());
    entry->record.width = kept.width;
    entry->record.height = kept.height;
    entry->record.format = kept.format;
    entry->record.positionMs = kept.positionMs;
    const libvp::VDPicture *record = &entry->record;
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.emplace(record, std::move(entry));
    return record;
}

void PictureStore::release(const libvp::VDPicture *picture)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_entries.erase(picture);
}

std::size_t PictureStore::count() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_entries.size();
}
