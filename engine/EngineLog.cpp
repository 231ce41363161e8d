#include "EngineLog.h"

#include "NativePath.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <exception>
#include <iterator>

namespace {

constexpr std::size_t LongestLine = 4096;

std::string timeStamp()
{
    const auto now = std::chrono::system_clock::now();
    const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
    std::tm parts = {};
#if defined(_WIN32)
    localtime_s(&parts, &seconds);
#else
    localtime_r(&seconds, &parts);
#endif
    const int milliseconds = static_cast<int>(
        std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000);
    char text[80];
    std::snprintf(text, sizeof(text), "%04d-%02d-%02d %02d:%02d:%02d.%03d ", parts.tm_year + 1900,
                  parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec, milliseconds);
    return text;
}

} // namespace

EngineLog &EngineLog::instance()
{
    static EngineLog log;
    return log;
}

bool EngineLog::open(const std::string &folder, std::size_t capBytes) noexcept
{
    try {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_file.close();
        m_path.clear();
        if (folder.empty())
            return false;
        std::error_code error;
        std::filesystem::create_directories(nativePath(folder), error);
        m_path = (nativePath(folder) / FileName).u8string();
        m_capBytes = capBytes;
        if (!openFile())
            return false;
        if (m_size > m_capBytes)
            keepNewerHalf();
        return m_file.is_open();
    } catch (const std::exception &) {
        return false;
    }
}

void EngineLog::close() noexcept
{
    try {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_file.close();
        m_path.clear();
    } catch (const std::exception &) {
    }
}

bool EngineLog::openFile()
{
    m_file.clear();
    m_file.open(nativePath(m_path), std::ios::binary | std::ios::app);
    if (!m_file.is_open())
        return false;
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(nativePath(m_path), error);
    m_size = error ? 0 : static_cast<std::size_t>(size);
    return true;
}

void EngineLog::keepNewerHalf()
{
    m_file.close();
    const std::filesystem::path path = nativePath(m_path);
    std::string newer;
    {
        std::ifstream input(path, std::ios::binary);
        const std::size_t keep = m_capBytes / 2;
        if (m_size > keep)
            input.seekg(static_cast<std::streamoff>(m_size - keep));
        std::string cutLine;
        std::getline(input, cutLine);
        newer.assign(std::istreambuf_iterator<char>(input), {});
    }
    {
        std::ofstream output(path, std::ios::binary | std::ios::trunc);
        output.write(newer.data(), static_cast<std::streamsize>(newer.size()));
    }
    openFile();
}

void EngineLog::write(const char *format, std::va_list arguments) noexcept
{
    try {
        char text[LongestLine];
        if (std::vsnprintf(text, sizeof(text), format, arguments) < 0)
            return;
        std::string line = timeStamp() + text;
        for (char &c : line) {
            if (c == '\n' || c == '\r')
                c = ' ';
        }
        line += '\n';
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (!m_file.is_open())
            return;
        m_file.write(line.data(), static_cast<std::streamsize>(line.size()));
        m_file.flush();
        m_size += line.size();
        if (m_size > m_capBytes)
            keepNewerHalf();
    } catch (const std::exception &) {
    }
}

void engineLog(const char *format, ...) noexcept
{
    std::va_list arguments;
    va_start(arguments, format);
    EngineLog::instance().write(format, arguments);
    va_end(arguments);
}
