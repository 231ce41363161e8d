#include "LocalCharset.h"

#include <windows.h>

#include <initguid.h>
#include <mlang.h>
#include <objbase.h>

#include <algorithm>
#include <iterator>

namespace {

// The system's name of IMultiLanguage2, which the import libraries lack.
constexpr IID kMultiLanguage2{0xdccfc164, 0x2b38, 0x11d2, {0xb7, 0xec, 0x00, 0xc0, 0x4f, 0x8f, 0x5d, 0x9a}};

// Enough for the detection, and no end of waiting for a large file.
constexpr std::size_t sampleSize = 64 << 10;

// COM for the thread, unless it has been set up in another way already.
class ComScope final {
public:
    ComScope()
        : m_result(CoInitializeEx(nullptr, COINIT_MULTITHREADED))
    {
    }
    ~ComScope()
    {
        if (SUCCEEDED(m_result))
            CoUninitialize();
    }
    ComScope(const ComScope &) = delete;
    ComScope &operator=(const ComScope &) = delete;

private:
    HRESULT m_result;
};

} // namespace

namespace LocalCharset {

bool isNeeded()
{
    return true;
}

int guess(const std::string &bytes)
{
    const ComScope com;
    IMultiLanguage2 *languages = nullptr;
    if (FAILED(CoCreateInstance(CLSID_CMultiLanguage, nullptr, CLSCTX_INPROC_SERVER, kMultiLanguage2,
                                reinterpret_cast<void **>(&languages))))
        return 0;
    std::string sample = bytes.substr(0, sampleSize);
    int size = static_cast<int>(sample.size());
    DetectEncodingInfo found[4] = {};
    int count = static_cast<int>(std::size(found));
    const HRESULT result =
        languages->DetectInputCodepage(MLDETECTCP_NONE, 0, sample.data(), &size, found, &count);
    languages->Release();
    if (result != S_OK || count < 1)
        return 0;
    const auto best =
        std::max_element(found, found + count, [](const DetectEncodingInfo &a, const DetectEncodingInfo &b) {
            return a.nConfidence < b.nConfidence;
        });
    return static_cast<int>(best->nCodePage);
}

std::optional<std::string> toUtf8(const std::string &bytes, int codePage)
{
    if (bytes.empty())
        return std::string();
    const auto page = static_cast<UINT>(codePage > 0 ? codePage : static_cast<int>(GetACP()));
    const int size = static_cast<int>(bytes.size());
    const int wideSize = MultiByteToWideChar(page, 0, bytes.data(), size, nullptr, 0);
    if (wideSize <= 0)
        return std::nullopt;
    std::wstring wide(static_cast<std::size_t>(wideSize), L'\0');
    MultiByteToWideChar(page, 0, bytes.data(), size, wide.data(), wideSize);
    const int textSize = WideCharToMultiByte(CP_UTF8, 0, wide.data(), wideSize, nullptr, 0, nullptr, nullptr);
    if (textSize <= 0)
        return std::nullopt;
    std::string text(static_cast<std::size_t>(textSize), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide.data(), wideSize, text.data(), textSize, nullptr, nullptr);
    return text;
}

} // namespace LocalCharset
