// Pictures of one colour in the forms in which they come, and a count of who was asked for them.
#pragma once

#include "pictures/PictureSources.h"

#include <QBuffer>
#include <QHash>
#include <QImage>

#include <condition_variable>
#include <mutex>

namespace TestPictures {

[[nodiscard]] inline QImage image(const QColor &color, const QSize &size = {60, 90})
{
    QImage made(size, QImage::Format_RGB32);
    made.fill(color);
    return made;
}

[[nodiscard]] inline QByteArray encoded(const QImage &image, const char *format = "PNG")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

[[nodiscard]] inline QByteArray encoded(const QColor &color, const QSize &size = {60, 90})
{
    return encoded(image(color, size));
}

[[nodiscard]] inline bool isColor(const QColor &is, const QColor &expected, int tolerance = 3)
{
    return qAbs(is.red() - expected.red()) <= tolerance && qAbs(is.green() - expected.green()) <= tolerance
           && qAbs(is.blue() - expected.blue()) <= tolerance;
}

// A server of pictures by address. Safe on several threads; a fetch can be held until it is let go.
class Server final {
public:
    void put(const QString &address, const QByteArray &body)
    {
        std::lock_guard lock(m_mutex);
        m_bodies.insert(address, body);
    }

    void hold()
    {
        std::lock_guard lock(m_mutex);
        m_isHeld = true;
    }

    void release()
    {
        {
            std::lock_guard lock(m_mutex);
            m_isHeld = false;
        }
        m_changed.notify_all();
    }

    // Waits until so many fetches began.
    [[nodiscard]] bool waitForFetches(int count)
    {
        std::unique_lock lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(10),
                                  [&] { return m_addresses.size() >= count; });
    }

    [[nodiscard]] QStringList addresses() const
    {
        std::lock_guard lock(m_mutex);
        return m_addresses;
    }
    [[nodiscard]] int timeoutMs() const
    {
        std::lock_guard lock(m_mutex);
        return m_timeoutMs;
    }

    [[nodiscard]] QByteArray get(const QString &address, int timeoutMs)
    {
        std::unique_lock lock(m_mutex);
        m_addresses.append(address);
        m_timeoutMs = timeoutMs;
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return !m_isHeld; });
        return m_bodies.value(address);
    }

    [[nodiscard]] PictureSources sources()
    {
        PictureSources made;
        made.fetch = [this](const QString &address, int timeoutMs) { return get(address, timeoutMs); };
        return made;
    }

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    QHash<QString, QByteArray> m_bodies;
    QStringList m_addresses;
    int m_timeoutMs{0};
    bool m_isHeld{false};
};

} // namespace TestPictures
