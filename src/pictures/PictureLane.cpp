#include "PictureLane.h"

#include <QDebug>

#include <exception>
#include <optional>
#include <vector>

namespace {

// A view asks for all its rows while it paints; the first of them must not make a round of its own.
constexpr std::chrono::milliseconds kGatherTime{20};

} // namespace

PictureLane::PictureLane(const char *name, Load load, Loaded loaded, std::chrono::milliseconds interval)
    : m_name(name)
    , m_load(std::move(load))
    , m_loaded(std::move(loaded))
    , m_interval(interval)
{
    m_thread = std::thread([this] { run(); });
}

PictureLane::~PictureLane()
{
    stop();
}

// ---- for the views

QPixmap *PictureLane::request(int row, const QString &key)
{
    if (QPixmap *pixmap = find(key))
        return pixmap;
    queue(row, key);
    return nullptr;
}

void PictureLane::queue(int row, const QString &key)
{
    {
        std::lock_guard lock(m_pendingMutex);
        if (m_quit || m_pending.contains(key))
            return;
        m_pending.insert(key, row);
    }
    m_wake.notify_one();
}

QPixmap *PictureLane::find(const QString &key)
{
    std::lock_guard lock(m_cacheMutex);
    const auto found = m_cache.find(key);
    return found == m_cache.end() ? nullptr : pixmapOf(*found->second);
}

QPixmap *PictureLane::keep(const QString &key, QImage image)
{
    std::lock_guard lock(m_cacheMutex);
    auto &place = m_cache[key];
    if (!place)
        place = std::make_unique<Picture>(Picture{std::move(image), {}});
    return pixmapOf(*place);
}

QPixmap *PictureLane::pixmapOf(Picture &picture)
{
    // An image that nobody else holds, in the form of the screen, becomes the pixmap without a copy.
    if (!picture.image.isNull())
        picture.pixmap = QPixmap::fromImage(std::exchange(picture.image, {}));
    return &picture.pixmap;
}

PictureLane::Retired PictureLane::clear()
{
    {
        std::lock_guard lock(m_pendingMutex);
        m_pending.clear();
    }
    std::lock_guard lock(m_cacheMutex);
    ++m_generation;
    return std::exchange(m_cache, {});
}

// ---- end

void PictureLane::askToStop()
{
    {
        std::lock_guard lock(m_pendingMutex);
        m_quit = true;
    }
    m_wake.notify_all();
}

void PictureLane::stop()
{
    askToStop();
    if (m_thread.joinable())
        m_thread.join();
}

// ---- the thread

void PictureLane::run()
{
    const auto quits = [this] { return m_quit.load(); };
    while (!m_quit) {
        {
            std::unique_lock lock(m_pendingMutex);
            m_wake.wait(lock, [this] { return m_quit || !m_pending.isEmpty(); });
            if (m_wake.wait_for(lock, kGatherTime, quits))
                return;
        }
        round();
        std::unique_lock lock(m_pendingMutex);
        m_wake.wait_for(lock, m_interval, quits);
    }
}

void PictureLane::round()
{
    std::vector<QString> first;
    std::vector<QString> again;
    {
        std::lock_guard lock(m_pendingMutex);
        // A key that fails may take its whole time-out: it does not hold up those that were never tried.
        std::set<QString> stillFailing;
        for (auto each = m_pending.cbegin(); each != m_pending.cend(); ++each) {
            const bool hasFailed = m_failed.count(each.key()) != 0;
            (hasFailed ? again : first).push_back(each.key());
            if (hasFailed)
                stillFailing.insert(each.key());
        }
        m_failed.swap(stillFailing);
    }
    for (const auto *keys : {&first, &again}) {
        for (const QString &key : *keys) {
            if (m_quit)
                return;
            if (isPending(key))
                tryKey(key);
        }
    }
}

void PictureLane::tryKey(const QString &key)
{
    unsigned generation = 0;
    bool isThere = false;
    {
        std::lock_guard lock(m_cacheMutex);
        generation = m_generation;
        isThere = m_cache.count(key) != 0;
    }
    if (!isThere) {
        QImage image;
        try {
            image = m_load(key, [this, &key] { return !m_quit && isPending(key); });
        } catch (const std::exception &error) {
            qInfo() << "[Picture]" << m_name << "failed:" << key << error.what();
        }
        if (image.isNull()) {
            // Once: it is tried again every second or so.
            if (!m_quit && isPending(key) && m_failed.insert(key).second)
                qInfo() << "[Picture] no" << m_name << "for" << key;
            return;
        }
        std::lock_guard lock(m_cacheMutex);
        // The list that wanted it is gone.
        if (generation != m_generation)
            return;
        auto &place = m_cache[key];
        if (!place)
            place = std::make_unique<Picture>(Picture{std::move(image), {}});
    }
    std::optional<int> row;
    {
        std::lock_guard lock(m_pendingMutex);
        const auto found = m_pending.find(key);
        if (found != m_pending.end()) {
            row = found.value();
            m_pending.erase(found);
        }
    }
    if (row)
        m_loaded(*row);
}

bool PictureLane::isPending(const QString &key) const
{
    std::lock_guard lock(m_pendingMutex);
    return m_pending.contains(key);
}
