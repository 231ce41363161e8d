// Big-endian numbers in the bytes of a file; 0 behind its end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

class BigEndianReader final {
public:
    using Bytes = std::vector<std::uint8_t>;

    // The bytes must outlive the reader.
    explicit BigEndianReader(const Bytes &bytes)
        : m_bytes(bytes)
    {
    }

    [[nodiscard]] bool has(std::size_t offset, std::size_t count) const
    {
        return offset <= m_bytes.size() && count <= m_bytes.size() - offset;
    }
    // Of up to four bytes.
    [[nodiscard]] std::uint32_t number(std::size_t offset, std::size_t size) const
    {
        std::uint32_t value = 0;
        for (std::size_t i = 0; has(offset, size) && i < size; ++i)
            value = (value << 8) | m_bytes[offset + i];
        return value;
    }
    [[nodiscard]] bool startsWith(const char *signature) const
    {
        const std::size_t size = std::strlen(signature);
        return m_bytes.size() >= size && std::memcmp(m_bytes.data(), signature, size) == 0;
    }

private:
    const Bytes &m_bytes;
};
