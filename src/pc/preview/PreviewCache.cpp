#include "PreviewCache.h"

#include <algorithm>

void PreviewCache::insert(int positionMs, int shownMs, const QImage &image)
{
    const qint64 size = image.sizeInBytes();
    if (image.isNull() || size > m_mostBytes)
        return;
    const int own = shownMs < 0 ? positionMs : shownMs;
    const int first = std::min(positionMs, own);
    int last = std::max(positionMs, own);
    const auto known = m_entries.find(first);
    if (known != m_entries.end()) {
        last = std::max(last, known->second.lastMs);
        remove(known);
    }
    while (m_bytes + size > m_mostBytes)
        remove(m_entries.find(m_uses.back()));
    m_uses.push_front(first);
    m_entries[first] = {image, last, m_uses.begin()};
    m_bytes += size;
}

QImage PreviewCache::find(int positionMs)
{
    auto entry = m_entries.upper_bound(positionMs);
    if (entry == m_entries.begin())
        return {};
    --entry;
    if (positionMs > entry->second.lastMs)
        return {};
    m_uses.splice(m_uses.begin(), m_uses, entry->second.use);
    return entry->second.image;
}

void PreviewCache::clear()
{
    m_entries.clear();
    m_uses.clear();
    m_bytes = 0;
}

void PreviewCache::remove(Entries::iterator entry)
{
    m_bytes -= entry->second.image.sizeInBytes();
    m_uses.erase(entry->second.use);
    m_entries.erase(entry);
}
