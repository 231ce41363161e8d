#include "CurlGet.h"

#include <curl/curl.h>

#include <algorithm>
#include <new>

namespace {

constexpr std::size_t kIdleHandles = 4;
constexpr long kSlowBytesPerSecond = 64;
constexpr long kSlowSeconds = 8;
constexpr int kMsPerSecond = 1000;

struct Sink {
    CurlGet::Reply &reply;
    const CurlGet::Request &request;
    bool overflown{false};
    bool stopped{false};
};

std::size_t takeBytes(char *data, std::size_t size, std::size_t count, void *user)
{
    auto *sink = static_cast<Sink *>(user);
    const std::size_t bytes = size * count;
    if (static_cast<qint64>(bytes) > sink->request.maxBytes - sink->reply.body.size()) {
        sink->overflown = true;
        return 0;
    }
    try {
        sink->reply.body.append(data, static_cast<int>(bytes));
    } catch (const std::bad_alloc &) {
        sink->overflown = true;
        return 0;
    }
    return bytes;
}

int lookAtStop(void *user, curl_off_t, curl_off_t, curl_off_t, curl_off_t)
{
    auto *sink = static_cast<Sink *>(user);
    sink->stopped = sink->request.stop != nullptr && sink->request.stop->isRaised();
    return sink->stopped ? 1 : 0;
}

CurlGet::Result resultOf(CURLcode code, const Sink &sink)
{
    if (sink.stopped)
        return CurlGet::Result::Stopped;
    if (sink.overflown || code == CURLE_FILESIZE_EXCEEDED)
        return CurlGet::Result::TooLarge;
    if (code == CURLE_OPERATION_TIMEDOUT)
        return CurlGet::Result::TimedOut;
    return code == CURLE_OK ? CurlGet::Result::Answered : CurlGet::Result::NoConnection;
}

} // namespace

class CurlGet::Handle final {
public:
    Handle()
        : m_curl(curl_easy_init())
    {
    }
    ~Handle()
    {
        if (m_curl != nullptr)
            curl_easy_cleanup(m_curl);
    }
    Handle(const Handle &) = delete;
    Handle &operator=(const Handle &) = delete;

    [[nodiscard]] Reply get(const Request &request);

private:
    void setUp(const Request &request, Sink &sink);
    void setProxy(const ProxySettings &proxy);

    CURL *m_curl;
    char m_error[CURL_ERROR_SIZE]{};
};

void CurlGet::Handle::setUp(const Request &request, Sink &sink)
{
    curl_easy_reset(m_curl); // keeps the connections
    curl_easy_setopt(m_curl, CURLOPT_URL, request.url.constData());
    curl_easy_setopt(m_curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(m_curl, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(m_curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(m_curl, CURLOPT_NETRC, static_cast<long>(CURL_NETRC_IGNORED));
    curl_easy_setopt(m_curl, CURLOPT_ACCEPT_ENCODING, "");
    curl_easy_setopt(m_curl, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(request.connectMs));
    curl_easy_setopt(m_curl, CURLOPT_TIMEOUT_MS, static_cast<long>(request.wholeMs));
    curl_easy_setopt(m_curl, CURLOPT_LOW_SPEED_LIMIT, kSlowBytesPerSecond);
    curl_easy_setopt(m_curl, CURLOPT_LOW_SPEED_TIME, kSlowSeconds);
    curl_easy_setopt(m_curl, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(request.maxBytes));
    curl_easy_setopt(m_curl, CURLOPT_WRITEFUNCTION, takeBytes);
    curl_easy_setopt(m_curl, CURLOPT_WRITEDATA, &sink);
    curl_easy_setopt(m_curl, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(m_curl, CURLOPT_XFERINFOFUNCTION, lookAtStop);
    curl_easy_setopt(m_curl, CURLOPT_XFERINFODATA, &sink);
    curl_easy_setopt(m_curl, CURLOPT_ERRORBUFFER, m_error);
    setProxy(request.proxy);
}

void CurlGet::Handle::setProxy(const ProxySettings &proxy)
{
    curl_easy_setopt(m_curl, CURLOPT_NOPROXY, "");
    // An empty name also keeps the environment's proxy out.
    curl_easy_setopt(m_curl, CURLOPT_PROXY, proxy.host.toUtf8().constData());
    if (proxy.host.isEmpty())
        return;
    curl_easy_setopt(m_curl, CURLOPT_PROXYTYPE, static_cast<long>(CURLPROXY_HTTP));
    curl_easy_setopt(m_curl, CURLOPT_PROXYPORT, static_cast<long>(proxy.port));
    if (proxy.user.isEmpty())
        return;
    curl_easy_setopt(m_curl, CURLOPT_PROXYUSERNAME, proxy.user.toUtf8().constData());
    curl_easy_setopt(m_curl, CURLOPT_PROXYPASSWORD, proxy.password.toUtf8().constData());
}

CurlGet::Reply CurlGet::Handle::get(const Request &request)
{
    Reply reply;
    if (m_curl == nullptr) {
        reply.error = "libcurl gives no handle";
        return reply;
    }
    m_error[0] = 0;
    Sink sink{reply, request};
    setUp(request, sink);
    curl_slist *headers = nullptr;
    for (const QByteArray &header : request.headers)
        headers = curl_slist_append(headers, header.constData());
    curl_easy_setopt(m_curl, CURLOPT_HTTPHEADER, headers);
    const CURLcode code = curl_easy_perform(m_curl);
    curl_easy_setopt(m_curl, CURLOPT_HTTPHEADER, nullptr);
    curl_slist_free_all(headers);

    reply.result = resultOf(code, sink);
    if (code != CURLE_OK)
        reply.error = m_error[0] != 0 ? m_error : curl_easy_strerror(code);
    long status = 0;
    curl_easy_getinfo(m_curl, CURLINFO_RESPONSE_CODE, &status);
    reply.status = static_cast<int>(status);
    const char *location = nullptr;
    if (curl_easy_getinfo(m_curl, CURLINFO_REDIRECT_URL, &location) == CURLE_OK && location != nullptr)
        reply.location = location;
    curl_off_t retrySeconds = 0;
    if (curl_easy_getinfo(m_curl, CURLINFO_RETRY_AFTER, &retrySeconds) == CURLE_OK) {
        constexpr curl_off_t day = 24 * 60 * 60;
        reply.retryAfterMs = std::clamp<curl_off_t>(retrySeconds, 0, day) * kMsPerSecond;
    }
    return reply;
}

CurlGet::CurlGet()
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

CurlGet::~CurlGet() = default;

CurlGet::Reply CurlGet::get(const Request &request)
{
    std::unique_ptr<Handle> handle = borrow();
    Reply reply = handle->get(request);
    giveBack(std::move(handle));
    return reply;
}

std::unique_ptr<CurlGet::Handle> CurlGet::borrow()
{
    {
        std::lock_guard lock(m_mutex);
        if (!m_idle.empty()) {
            std::unique_ptr<Handle> handle = std::move(m_idle.back());
            m_idle.pop_back();
            return handle;
        }
    }
    return std::make_unique<Handle>();
}

void CurlGet::giveBack(std::unique_ptr<Handle> handle)
{
    std::lock_guard lock(m_mutex);
    if (m_idle.size() < kIdleHandles)
        m_idle.push_back(std::move(handle));
}
