// One open DVD: its titles, its name and the bytes of its streams.
//
// Used by one thread at a time. Waits for the disc.
#pragma once

#include "DvdStructure.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class DvdDisc final {
public:
    static constexpr std::size_t SectorSize = 2048;

    // Null when the path (device, image, or folder above VIDEO_TS) holds no DVD structure.
    [[nodiscard]] static std::unique_ptr<DvdDisc> open(const std::string &path);
    DvdDisc(const DvdDisc &) = delete;
    DvdDisc &operator=(const DvdDisc &) = delete;
    ~DvdDisc();

    [[nodiscard]] const std::vector<DvdTitle> &titles() const { return m_titles; }
    [[nodiscard]] bool hasMenu() const;
    // Empty for a folder.
    [[nodiscard]] std::string volumeName() const;

    // Sectors read of a title set's streams, 0 at their end, -1 for an error.
    std::int64_t readSectors(int titleSet, std::uint32_t sector, std::size_t count, void *buffer);

private:
    struct Reader;

    DvdDisc();
    [[nodiscard]] DvdStructure::Bytes infoFile(int titleSet) const;
    bool readTitles();

    std::unique_ptr<Reader> m_reader;
    std::vector<DvdTitle> m_titles;
};
