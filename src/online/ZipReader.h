// An archive in memory as a list of entries that can be read one by one, over the unzip layer.
//
// Refers to the bytes, which outlive it. One thread. What it hands out is as the archive says; whether that
// is harmless is the caller's to judge.
#pragma once

#include "MemoryZipIo.h"
#include "ZipEntryName.h"

#include <minizip/unzip.h>

#include <QVector>

#include <functional>
#include <optional>

struct ZipEntry {
    ZipEntryName name;
    qint64 size{0};     // bytes unpacked, as the archive claims
    bool isPlain{true}; // neither encrypted nor a link, a device or the like
    unz64_file_pos position{};
};

class ZipReader final {
public:
    ZipReader(const char *data, std::size_t size);
    ~ZipReader();
    ZipReader(const ZipReader &) = delete;
    ZipReader &operator=(const ZipReader &) = delete;

    [[nodiscard]] bool isOpen() const { return m_archive != nullptr; }
    // Nothing when the list is empty, damaged or longer than maximum.
    [[nodiscard]] std::optional<QVector<ZipEntry>> entries(qint64 maximum);

    // Takes a piece of an entry; false ends the reading.
    using Writer = std::function<bool(const char *data, qint64 size)>;
    // False when the entry is damaged, not of the size it claims, or the writer has ended it.
    [[nodiscard]] bool read(const ZipEntry &entry, const Writer &write);

private:
    [[nodiscard]] std::optional<ZipEntry> currentEntry();

    MemoryZipIo m_io;
    unzFile m_archive{nullptr};
};
