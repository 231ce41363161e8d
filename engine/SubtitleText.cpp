#include "SubtitleText.h"

#include "LocalCharset.h"
#include "LocalFile.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::int64_t largestText = 32 << 20; // bytes
constexpr int sampleSize = 2048;               // bytes

const std::string &prefix()
{
    static const std::string text = std::string(SubtitleText::protocol) + "://";
    return text;
}

enum class Form { Other, LittleEndian, BigEndian };

struct Encoding {
    Form form = Form::Other;
    std::size_t markSize = 0; // bytes
};

// Without a mark it shows by the upper halves of digits and line ends, of which every subtitle is full.
Encoding encodingOf(const std::string &sample)
{
    const auto byte = [&sample](std::size_t i) { return static_cast<unsigned char>(sample[i]); };
    if (sample.size() < 4)
        return {};
    if (byte(0) == 0xFF && byte(1) == 0xFE && (byte(2) != 0 || byte(3) != 0))
        return {Form::LittleEndian, 2};
    if (byte(0) == 0xFE && byte(1) == 0xFF)
        return {Form::BigEndian, 2};
    std::size_t low = 0;
    std::size_t high = 0;
    std::size_t both = 0;
    const std::size_t pairs = sample.size() / 2;
    for (std::size_t i = 0; i < pairs; ++i) {
        const bool first = byte(2 * i) == 0;
        const bool second = byte(2 * i + 1) == 0;
        both += first && second ? 1 : 0;
        high += first && !second ? 1 : 0;
        low += second && !first ? 1 : 0;
    }
    if (both > 0 || std::max(low, high) * 5 < pairs)
        return {};
    if (high == 0)
        return {Form::LittleEndian, 0};
    return low == 0 ? Encoding{Form::BigEndian, 0} : Encoding{};
}

std::string readBytes(LocalFile &file, std::int64_t bytes)
{
    std::string text(static_cast<std::size_t>(bytes), '\0');
    const std::int64_t got = file.readAt(0, text.data(), text.size());
    text.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return text;
}

bool isUtf8(const std::string &text)
{
    std::size_t following = 0;
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (following > 0) {
            if ((byte & 0xC0) != 0x80)
                return false;
            --following;
        } else if (byte >= 0x80) {
            following = (byte & 0xE0) == 0xC0 ? 1 : (byte & 0xF0) == 0xE0 ? 2 : (byte & 0xF8) == 0xF0 ? 3 : 0;
            if (following == 0)
                return false;
        }
    }
    return following == 0;
}

// Text of some code page; pictures hold zeros.
bool isLocal(const std::string &bytes)
{
    return LocalCharset::isNeeded() && bytes.find('\0') == std::string::npos && !isUtf8(bytes);
}

void append(std::string &text, char32_t letter)
{
    const auto put = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (letter < 0x80) {
        put(letter);
    } else if (letter < 0x800) {
        put(0xC0 | letter >> 6);
        put(0x80 | (letter & 0x3F));
    } else if (letter < 0x10000) {
        put(0xE0 | letter >> 12);
        put(0x80 | (letter >> 6 & 0x3F));
        put(0x80 | (letter & 0x3F));
    } else {
        put(0xF0 | letter >> 18);
        put(0x80 | (letter >> 12 & 0x3F));
        put(0x80 | (letter >> 6 & 0x3F));
        put(0x80 | (letter & 0x3F));
    }
}

} // namespace

namespace SubtitleText {

std::string addressOf(const std::string &path)
{
    LocalFile file;
    if (!file.open(path) || file.size() > largestText)
        return path;
    if (encodingOf(readBytes(file, sampleSize)).form != Form::Other)
        return prefix() + path;
    const bool local = LocalCharset::isNeeded() && isLocal(readBytes(file, file.size()));
    return local ? prefix() + path : path;
}

std::string pathOf(const std::string &address)
{
    return address.compare(0, prefix().size(), prefix()) == 0 ? address.substr(prefix().size()) : address;
}

std::optional<std::string> read(const std::string &path, int codePage)
{
    LocalFile file;
    if (!file.open(path) || file.size() > largestText)
        return std::nullopt;
    const std::string bytes = readBytes(file, file.size());
    const Encoding encoding = encodingOf(bytes.substr(0, sampleSize));
    if (encoding.form != Form::Other)
        return fromUtf16(bytes.substr(encoding.markSize), encoding.form == Form::BigEndian);
    if (!isLocal(bytes))
        return std::nullopt;
    return LocalCharset::toUtf8(bytes, codePage > 0 ? codePage : LocalCharset::guess(bytes));
}

std::string fromUtf16(const std::string &bytes, bool bigEndian)
{
    constexpr char32_t replacement = 0xFFFD;
    const auto unit = [&](std::size_t i) -> char32_t {
        const auto first = static_cast<unsigned char>(bytes[2 * i]);
        const auto second = static_cast<unsigned char>(bytes[2 * i + 1]);
        return bigEndian ? char32_t(first << 8 | second) : char32_t(second << 8 | first);
    };
    const auto isLead = [](char32_t value) { return value >= 0xD800 && value < 0xDC00; };
    const auto isTrail = [](char32_t value) { return value >= 0xDC00 && value < 0xE000; };
    std::string text;
    const std::size_t count = bytes.size() / 2;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < count; ++i) {
        const char32_t value = unit(i);
        if (isLead(value) && i + 1 < count && isTrail(unit(i + 1))) {
            append(text, 0x10000 + ((value - 0xD800) << 10) + (unit(i + 1) - 0xDC00));
            ++i;
        } else {
            append(text, isLead(value) || isTrail(value) ? replacement : value);
        }
    }
    return text;
}

} // namespace SubtitleText
