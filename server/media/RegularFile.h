// A regular file, read at any offset.
//
// Nothing else is ever opened: a pipe, a socket or a device in a media folder would hold up whoever reads it.
// A link as the last part of the path is not followed, so what is opened lies where its name says. One thread
// at a time.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

class RegularFile final {
public:
    RegularFile() = default;
    explicit RegularFile(const QString &path) { open(path); }
    ~RegularFile() { close(); }
    RegularFile(const RegularFile &) = delete;
    RegularFile &operator=(const RegularFile &) = delete;

    bool open(const QString &path);
    void close();
    [[nodiscard]] bool isOpen() const { return m_handle != NoHandle; }
    [[nodiscard]] qint64 size() const { return m_size; }

    // Bytes read, fewer at the end, 0 behind it, -1 for an error.
    [[nodiscard]] qint64 readAt(qint64 offset, void *buffer, qint64 bytes);

    // The whole of a small file; empty when it cannot be read or is larger than the limit.
    [[nodiscard]] static QByteArray contents(const QString &path, qint64 limit);

private:
    static constexpr std::intptr_t NoHandle = -1;
    std::intptr_t m_handle{NoHandle};
    qint64 m_size{0};
};
