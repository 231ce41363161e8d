// A regular file, or a block device, read at any offset. One read error does not end it.
//
// Nothing else is ever opened: a pipe or a socket in a media folder would hold up whoever reads it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

class LocalFile final {
public:
    enum class Kind { None, Regular, Folder, Device, Other };

    LocalFile() = default;
    LocalFile(const LocalFile &) = delete;
    LocalFile &operator=(const LocalFile &) = delete;
    ~LocalFile() { close(); }

    // Kind of what stands at a path in UTF-8, links followed.
    [[nodiscard]] static Kind kindOf(const std::string &path);

    // False for all but regular files, and block devices (with their medium) where they are asked for.
    bool open(const std::string &path, bool allowDevices = false);
    void close();
    [[nodiscard]] bool isOpen() const { return m_handle != NoHandle; }

    // Bytes; of the medium for a device.
    [[nodiscard]] std::int64_t size() const { return m_size; }

    // Bytes read, fewer at the end, 0 behind it, -1 for an error.
    std::int64_t readAt(std::int64_t offset, void *buffer, std::size_t bytes);

private:
    static constexpr std::intptr_t NoHandle = -1;
    std::intptr_t m_handle{NoHandle};
    std::int64_t m_size{0};
};
