#include "MpvTextStream.h"

#include "EngineLog.h"
#include "SubtitleText.h"

#include <mpv/client.h>
#include <mpv/stream_cb.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <string>

namespace {

struct Reading {
    std::string text;
    std::size_t place = 0;
};

Reading &readingOf(void *cookie)
{
    return *static_cast<Reading *>(cookie);
}

std::int64_t readText(void *cookie, char *buffer, std::uint64_t bytes)
{
    Reading &reading = readingOf(cookie);
    const std::size_t count =
        std::min<std::size_t>(static_cast<std::size_t>(bytes), reading.text.size() - reading.place);
    std::copy_n(reading.text.data() + reading.place, count, buffer);
    reading.place += count;
    return static_cast<std::int64_t>(count);
}

std::int64_t seekText(void *cookie, std::int64_t offset)
{
    Reading &reading = readingOf(cookie);
    if (offset < 0 || offset > static_cast<std::int64_t>(reading.text.size()))
        return MPV_ERROR_GENERIC;
    reading.place = static_cast<std::size_t>(offset);
    return offset;
}

std::int64_t sizeOfText(void *cookie)
{
    return static_cast<std::int64_t>(readingOf(cookie).text.size());
}

void closeText(void *cookie)
{
    delete static_cast<Reading *>(cookie);
}

int openText(void *codePage, char *address, mpv_stream_cb_info *info)
{
    try {
        std::optional<std::string> text = SubtitleText::read(
            SubtitleText::pathOf(address), *static_cast<const std::atomic<int> *>(codePage));
        if (!text)
            return MPV_ERROR_LOADING_FAILED;
        info->cookie = std::make_unique<Reading>(Reading{std::move(*text), 0}).release();
    } catch (const std::exception &error) {
        engineLog("[Play] a subtitle file cannot be read: %s", error.what());
        return MPV_ERROR_LOADING_FAILED;
    }
    info->read_fn = readText;
    info->seek_fn = seekText;
    info->size_fn = sizeOfText;
    info->close_fn = closeText;
    return 0;
}

} // namespace

namespace MpvTextStream {

bool addTo(mpv_handle *handle, std::atomic<int> &codePage)
{
    const int error = mpv_stream_cb_add_ro(handle, SubtitleText::protocol, &codePage, openText);
    if (error < 0)
        engineLog("[Engine] texts cannot be handed over: %s", mpv_error_string(error));
    return error >= 0;
}

} // namespace MpvTextStream
