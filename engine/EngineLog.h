// The log of the engine library: "Orbix.log" in the log folder that the player names.
//
// One a process. Lines written before open() or after close() are dropped. Every operation may be called from
// any thread and none throws. A log that reaches its cap keeps its newer half.
#pragma once

#include <cstdarg>
#include <cstddef>
#include <fstream>
#include <mutex>
#include <string>

class EngineLog final {
public:
    static constexpr const char *FileName = "Orbix.log";
    static constexpr std::size_t DefaultCapBytes = 4u << 20;

    EngineLog() = default;
    EngineLog(const EngineLog &) = delete;
    EngineLog &operator=(const EngineLog &) = delete;

    // The log that engineLog() writes to.
    static EngineLog &instance();

    // Folder in UTF-8; made when it is missing. False when the file cannot be written: the engine then runs
    // without a log.
    bool open(const std::string &folder, std::size_t capBytes = DefaultCapBytes) noexcept;
    void close() noexcept;

    // One line; a time stamp and the line end are added, line breaks inside become blanks.
    void write(const char *format, std::va_list arguments) noexcept;

private:
    bool openFile();
    void keepNewerHalf();

    std::mutex m_mutex;
    std::string m_path;
    std::size_t m_capBytes{DefaultCapBytes};
    std::size_t m_size{0};
    std::ofstream m_file;
};

#if defined(__GNUC__)
__attribute__((format(printf, 1, 2)))
#endif
void engineLog(const char *format, ...) noexcept;
