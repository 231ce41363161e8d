// One open Blu-ray: its titles, its name and the bytes of its streams.
//
// Used by one thread at a time. Waits for the disc.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

struct BluRayTitle {
    int number = 0; // from 1, in the order of the disc library's list of relevant titles
    int durationMs = 0;
    int chapterCount = 0;
    std::string codec; // of the video, empty when unknown
    int width = 0;
    int height = 0;
};

class BluRayDisc final {
public:
    // Null when the path (device, image, or folder above BDMV) holds no Blu-ray structure.
    [[nodiscard]] static std::unique_ptr<BluRayDisc> open(const std::string &path);
    BluRayDisc(const BluRayDisc &) = delete;
    BluRayDisc &operator=(const BluRayDisc &) = delete;
    ~BluRayDisc();

    [[nodiscard]] const std::vector<BluRayTitle> &titles() const { return m_titles; }
    [[nodiscard]] bool hasMenu() const { return m_hasMenu; }
    [[nodiscard]] bool isUltraHd() const { return m_isUltraHd; }
    // Label of the volume; empty for a folder.
    [[nodiscard]] const std::string &volumeName() const { return m_volumeName; }

    // Begins to deliver a title. False when its streams are not there.
    bool selectTitle(int number);
    // Goes to the entry point at or before the time; answers its own time, below 0 when it cannot.
    double seekSeconds(double seconds);
    // Transport stream packets of 192 bytes. Bytes read, 0 at the end, -1 for an error.
    std::int64_t read(void *buffer, std::size_t bytes);

private:
    struct Reader;

    BluRayDisc();
    void readTitles();

    std::unique_ptr<Reader> m_reader;
    std::vector<BluRayTitle> m_titles;
    std::string m_volumeName;
    bool m_hasMenu{false};
    bool m_isUltraHd{false};
};
