// Reads the title structure of a DVD from the bytes of its information files.
//
// Stateless. Every offset of the files is checked: a file cut or changed anywhere reads as fewer titles.
#pragma once

#include <cstdint>
#include <vector>

struct DvdCell {
    std::uint32_t firstSector = 0; // from the beginning of the title set's streams
    std::uint32_t lastSector = 0;
    int durationMs = 0;
};

struct DvdTitle {
    int number = 0;   // on the disc, from 1
    int titleSet = 0; // from 1
    int chapterCount = 0;
    int durationMs = 0;
    int width = 0;
    int height = 0;
    std::vector<DvdCell> cells; // in the order they play, first angle
};

class DvdStructure final {
public:
    using Bytes = std::vector<std::uint8_t>;

    DvdStructure() = delete;

    struct TitleEntry {
        int number = 0;
        int titleSet = 0;
        int numberInSet = 0; // from 1
        int chapterCount = 0;
    };

    // Titles that the disc's own information file lists; empty for what is no such file.
    [[nodiscard]] static std::vector<TitleEntry> titleEntries(const Bytes &discInfo);
    // One of them, from the information file of its title set. False when it is not there.
    [[nodiscard]] static bool readTitle(const Bytes &setInfo, const TitleEntry &entry, DvdTitle &title);
};
