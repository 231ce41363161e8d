#include "CurlTransfer.h"

#include <QUrl>

#include <curl/curl.h>

#include <mutex>

namespace {

constexpr long kMaximumRedirects = 10;
constexpr long kLowestBytesPerSecond = 1;
constexpr char kSecuredScheme[] = "https";
constexpr char kContentRange[] = "content-range:";
// For the library 1 is a mode of the past, which it reads as 2: the name in the certificate must fit.
constexpr long kVerifyName = 2;

void setUpLibraryOnce()
{
    // Never torn down: a thread may still transfer while the process ends.
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

struct ListDeleter {
    void operator()(curl_slist *list) const { curl_slist_free_all(list); }
};
using HeaderList = std::unique_ptr<curl_slist, ListDeleter>;

struct FormDeleter {
    void operator()(curl_mime *form) const { curl_mime_free(form); }
};
using Form = std::unique_ptr<curl_mime, FormDeleter>;

// What the library's callbacks see of a transfer.
struct Sinks {
    const CurlTransfer::Writer &write;
    const CurlTransfer::Progress &progress;
    qint64 resourceSize{-1};
    bool isHeadWhole{false};
};

std::size_t takeBytes(char *data, std::size_t size, std::size_t count, void *user) noexcept
{
    const std::size_t bytes = size * count;
    try {
        return static_cast<Sinks *>(user)->write(data, qint64(bytes)) ? bytes : 0;
    } catch (...) {
        return 0;
    }
}

int takeProgress(void *user, curl_off_t total, curl_off_t received, curl_off_t, curl_off_t) noexcept
{
    const auto *sinks = static_cast<Sinks *>(user);
    try {
        return !sinks->progress || sinks->progress(received, total) ? 0 : 1;
    } catch (...) {
        return 1;
    }
}

// "Content-Range: bytes 400-999/1000", or "bytes */1000" where nothing could be sent.
std::size_t takeHeader(char *data, std::size_t size, std::size_t count, void *user) noexcept
{
    const std::size_t bytes = size * count;
    try {
        const QByteArray line = QByteArray(data, int(bytes)).trimmed();
        auto *sinks = static_cast<Sinks *>(user);
        if (line.startsWith("HTTP/")) {
            // Another answer begins, after a redirect or a proxy's word.
            sinks->resourceSize = -1;
            sinks->isHeadWhole = false;
        } else if (line.isEmpty()) {
            sinks->isHeadWhole = true;
        } else if (line.toLower().startsWith(kContentRange)) {
            bool isNumber = false;
            const qint64 whole = line.mid(line.lastIndexOf('/') + 1).toLongLong(&isNumber);
            sinks->resourceSize = isNumber && whole >= 0 ? whole : -1;
        }
        return bytes;
    } catch (...) {
        return 0;
    }
}

QByteArray encodedUrl(const QString &text)
{
    const QUrl url(text);
    return url.isValid() ? url.toEncoded() : text.toUtf8();
}

QByteArray encodedPart(const QString &text)
{
    return QUrl::toPercentEncoding(text);
}

void setTrust(CURL *curl, const TransferRequest &request)
{
    const bool isSecured = CurlTransfer::isSecured(request.url);
    // A redirect may lead from a plain address to a secured one, so verification stays on for those who
    // follow.
    const bool verifies = isSecured || request.followRedirects;
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYPEER, verifies ? 1L : 0L);
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYHOST, verifies ? kVerifyName : 0L);
    curl_easy_setopt(curl, CURLOPT_HEADER, 0L);
    if (isSecured && !request.certificateFile.isEmpty())
        curl_easy_setopt(curl, CURLOPT_CAINFO, request.certificateFile.toUtf8().constData());
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_REDIR_PROTOCOLS_STR, isSecured ? kSecuredScheme : "http,https");
}

void setProxy(CURL *curl, const ProxyRoute &route)
{
    // Both are set in any case: else the environment's variables speak.
    curl_easy_setopt(curl, CURLOPT_NOPROXY, "");
    if (route.kind == ProxyKind::None) {
        curl_easy_setopt(curl, CURLOPT_PROXY, "");
        return;
    }
    const bool isSocks = route.kind == ProxyKind::Socks5;
    curl_easy_setopt(curl, CURLOPT_PROXYTYPE, long(isSocks ? CURLPROXY_SOCKS5 : CURLPROXY_HTTP));
    const ProxyInfo &info = route.info;
    const bool isBare6 = info.host.contains(QLatin1Char(':')) && !info.host.startsWith(QLatin1Char('['));
    const QString host = isBare6 ? QLatin1Char('[') + info.host + QLatin1Char(']') : info.host;
    curl_easy_setopt(curl, CURLOPT_PROXY,
                     (host + QLatin1Char(':') + QString::number(info.port)).toUtf8().constData());
    if (!info.user.isEmpty() && !info.password.isEmpty()) {
        // The library undoes percent signs in both, and the first colon parts them.
        const QByteArray login = encodedPart(info.user) + ':' + encodedPart(info.password);
        curl_easy_setopt(curl, CURLOPT_PROXYUSERPWD, login.constData());
    }
}

void setLimits(CURL *curl, const TransferRequest &request)
{
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT, long(qMax(0, request.timeoutSeconds)));
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, long(qMax(0, request.connectTimeoutSeconds)));
    if (request.lowSpeedSeconds > 0) {
        curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, kLowestBytesPerSecond);
        curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, long(request.lowSpeedSeconds));
    }
}

Form setMethod(CURL *curl, const TransferRequest &request)
{
    switch (request.method) {
    case TransferRequest::Method::Get:
        curl_easy_setopt(curl, CURLOPT_HTTPGET, 1L);
        if (request.resumeOffset > 0)
            curl_easy_setopt(curl, CURLOPT_RESUME_FROM_LARGE, curl_off_t(request.resumeOffset));
        break;
    case TransferRequest::Method::PostForm:
        if (!request.formFields.isEmpty()) {
            Form form(curl_mime_init(curl));
            for (const FormField &field : request.formFields) {
                curl_mimepart *part = curl_mime_addpart(form.get());
                curl_mime_name(part, field.name.constData());
                curl_mime_data(part, field.value.constData(), std::size_t(field.value.size()));
            }
            curl_easy_setopt(curl, CURLOPT_MIMEPOST, form.get());
            return form;
        }
        [[fallthrough]];
    case TransferRequest::Method::PostBody:
        curl_easy_setopt(curl, CURLOPT_POST, 1L);
        curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE_LARGE, curl_off_t(request.body.size()));
        curl_easy_setopt(curl, CURLOPT_POSTFIELDS, request.body.constData());
        break;
    }
    return {};
}

HeaderList headerList(const TransferRequest &request)
{
    // Without an "Expect" the body follows at once; else a peer that does not know it costs a second.
    HeaderList list(curl_slist_append(nullptr, "Expect:"));
    for (const QByteArray &header : request.headers) {
        if (curl_slist *longer = curl_slist_append(list.get(), header.constData())) {
            (void)list.release();
            list.reset(longer);
        }
    }
    return list;
}

TransferResult resultOf(CURLcode code, long httpStatus)
{
    TransferResult result;
    result.end = code == CURLE_OK            ? TransferResult::End::Done
                 : code == CURLE_RANGE_ERROR ? TransferResult::End::RangeRefused
                                             : TransferResult::End::Failed;
    result.code = code;
    result.text = QString::fromUtf8(curl_easy_strerror(code));
    result.httpStatus = httpStatus;
    return result;
}

} // namespace

struct CurlTransfer::Handle {
    struct Deleter {
        void operator()(CURL *curl) const { curl_easy_cleanup(curl); }
    };
    std::unique_ptr<CURL, Deleter> curl;
};

CurlTransfer::CurlTransfer()
    : m_handle(std::make_unique<Handle>())
{
    setUpLibraryOnce();
    m_handle->curl.reset(curl_easy_init());
}

CurlTransfer::~CurlTransfer() = default;

bool CurlTransfer::isSecured(const QString &url)
{
    return QUrl(url).scheme() == QLatin1String(kSecuredScheme);
}

TransferResult CurlTransfer::refusal(long httpStatus)
{
    return resultOf(CURLE_HTTP_RETURNED_ERROR, httpStatus);
}

TransferResult CurlTransfer::shortAnswer(long httpStatus)
{
    return resultOf(CURLE_PARTIAL_FILE, httpStatus);
}

TransferResult CurlTransfer::run(const TransferRequest &request, const Writer &write,
                                 const Progress &progress)
{
    CURL *curl = m_handle->curl.get();
    if (curl == nullptr)
        return resultOf(CURLE_FAILED_INIT, 0);

    curl_easy_reset(curl);
    Sinks sinks{write, progress};
    const HeaderList headers = headerList(request);
    curl_easy_setopt(curl, CURLOPT_URL, encodedUrl(request.url).constData());
    setTrust(curl, request);
    curl_easy_setopt(curl, CURLOPT_VERBOSE, 0L);
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, request.followRedirects ? 1L : 0L);
    curl_easy_setopt(curl, CURLOPT_MAXREDIRS, kMaximumRedirects);
    curl_easy_setopt(curl, CURLOPT_FAILONERROR, request.refuseErrorStatus ? 1L : 0L);
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers.get());
    const Form form = setMethod(curl, request);
    setLimits(curl, request);
    setProxy(curl, request.proxy);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &sinks);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, takeBytes);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, &sinks);
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, takeHeader);
    curl_easy_setopt(curl, CURLOPT_NOPROGRESS, progress ? 0L : 1L);
    curl_easy_setopt(curl, CURLOPT_XFERINFODATA, &sinks);
    curl_easy_setopt(curl, CURLOPT_XFERINFOFUNCTION, takeProgress);

    CURLcode code = curl_easy_perform(curl);
    // A peer that closes within its head counts as done for the library.
    if (code == CURLE_OK && !sinks.isHeadWhole)
        code = CURLE_GOT_NOTHING;
    long status = 0;
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
    TransferResult result = resultOf(code, status);
    curl_off_t length = -1;
    if (curl_easy_getinfo(curl, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length) == CURLE_OK)
        result.contentLength = length;
    result.resourceSize = sinks.resourceSize;
    // The handle must not keep what ends with this call.
    curl_easy_reset(curl);
    return result;
}
