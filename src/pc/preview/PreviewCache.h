// Pictures of one source that have been fetched, up to a number of bytes; what was not used for longest goes
// first.
//
// A picture answers for all positions from its own time to the latest one that it was fetched for: no key
// frame stands between them. Not safe for several threads; its owner locks.
#pragma once

#include <QImage>

#include <list>
#include <map>

class PreviewCache final {
public:
    explicit PreviewCache(qint64 mostBytes)
        : m_mostBytes(mostBytes)
    {
    }

    // shownMs below 0: known for this position alone. A picture above the limit is not kept.
    void insert(int positionMs, int shownMs, const QImage &image);
    // Null when no picture is known to be the one of this position.
    [[nodiscard]] QImage find(int positionMs);
    void clear();

    [[nodiscard]] qint64 bytes() const { return m_bytes; }
    [[nodiscard]] int count() const { return static_cast<int>(m_entries.size()); }

private:
    struct Entry {
        QImage image;
        int lastMs{0};
        std::list<int>::iterator use;
    };
    using Entries = std::map<int, Entry>; // by the first position that they answer for

    void remove(Entries::iterator entry);

    qint64 m_mostBytes;
    qint64 m_bytes{0};
    Entries m_entries;
    std::list<int> m_uses; // keys of the entries, latest use first
};
