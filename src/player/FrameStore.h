// Copies of pictures whose pixels cross a queued signal as a bare pointer.
//
// A picture is copied out of the engine's memory while the engine still owns it. The copy lives at least
// until delivered() is called for it, and the newest ones live on, so that a slot that runs a dialog keeps
// its pixels. Safe on every thread.
#pragma once

#include <QImage>

#include <deque>
#include <mutex>

class FrameStore final {
public:
    struct Frame {
        quint64 ticket{0};
        unsigned char *pixels{nullptr}; // rows of width * 4 bytes; null when there was no usable picture
        int width{0};
        int height{0};
    };

    explicit FrameStore(QImage::Format format);

    // Four bytes a pixel, rows without padding.
    [[nodiscard]] Frame keep(const unsigned char *pixels, int width, int height);

    // All slots have run for this and all earlier pictures.
    void delivered(quint64 ticket);

    // Null before the first one.
    [[nodiscard]] QImage last() const;

    // How many copies live, for the tests.
    [[nodiscard]] int count() const;

private:
    struct Entry {
        quint64 ticket{0};
        QImage image;
    };

    QImage::Format m_format;
    mutable std::mutex m_mutex;
    std::deque<Entry> m_entries;
    quint64 m_lastTicket{0};
};
