#include "DownloadProxy.h"

#include "core/LogHandler.h"

#include <QFile>

namespace {

constexpr long kOk = 200;
constexpr long kPartialContent = 206;
constexpr long kRangeNotSatisfiable = 416;

struct ProxyLine {
    ProxyKind kind;
    const char *withUser;
    const char *withoutUser;
};

constexpr ProxyLine kProxyLines[] = {
    {ProxyKind::Socks5, "Downloader_info: use proxy socket: %s@%s\n",
     "Downloader_info: use proxy socket: %s\n"},
    {ProxyKind::Http, "Downloader_info: use proxy http: %s@%s\n", "Downloader_info: use proxy http: %s\n"},
};

// The password stays out of the log.
void logProxy(const ProxyRoute &route)
{
    const ProxyInfo &info = route.info;
    const QByteArray address = QStringLiteral("%1:%2").arg(info.host).arg(info.port).toLocal8Bit();
    for (const ProxyLine &line : kProxyLines) {
        if (line.kind != route.kind)
            continue;
        if (!info.user.isEmpty() && !info.password.isEmpty())
            logPrintf(line.withUser, info.user.toLocal8Bit().constData(), address.constData());
        else
            logPrintf(line.withoutUser, address.constData());
    }
}

} // namespace

DownloadProxy::DownloadProxy(DownloadRequest request, int stallSeconds)
    : DownloadProxyBase(std::move(request))
    , m_stallSeconds(stallSeconds)
{
}

ProxyRoute DownloadProxy::route() const
{
    return {request().proxyKind, request().proxy};
}

DownloadProxyBase::Fetched DownloadProxy::fetch(QFile &file)
{
    TransferRequest transfer;
    transfer.url = request().url;
    transfer.followRedirects = true;
    transfer.refuseErrorStatus = true;
    transfer.connectTimeoutSeconds = request().connectTimeoutSeconds;
    transfer.lowSpeedSeconds = m_stallSeconds;
    transfer.resumeOffset = request().resumeOffset;
    transfer.proxy = route();
    logProxy(transfer.proxy);

    bool isWritten = true;
    const qint64 offset = transfer.resumeOffset;
    const TransferResult result = m_curl.run(
        transfer,
        [&](const char *data, qint64 size) {
            isWritten = file.write(data, size) == size;
            return isWritten;
        },
        [&](qint64 received, qint64 total) {
            report(offset + received, total > 0 ? offset + total : -1);
            return !isStopped();
        });

    if (!isWritten) {
        fail(DownloadResult::End::File, file.errorString(), result.httpStatus);
        return Fetched::Failed;
    }
    // A range behind the end says more than that it failed.
    const bool isBehind = offset > 0 && result.httpStatus == kRangeNotSatisfiable;
    if (result.end == TransferResult::End::Failed && !isBehind) {
        fail(isStopped() ? DownloadResult::End::Stopped : DownloadResult::End::Transfer, result.text,
             result.httpStatus);
        return Fetched::Failed;
    }
    return judge(result, file.size());
}

// What an answer without an error is worth. A transfer from an offset has to be told by its status: bytes of
// another answer behind those of an earlier one would make a file that only looks whole.
DownloadProxyBase::Fetched DownloadProxy::judge(const TransferResult &result, qint64 size)
{
    const qint64 offset = request().resumeOffset;
    const bool resumes = offset > 0;
    if (result.end == TransferResult::End::RangeRefused)
        return Fetched::StartAnew;
    switch (result.httpStatus) {
    case kOk:
        // A server that does not know ranges and announces what lies here already.
        if (resumes && (result.contentLength != offset || size != offset))
            return Fetched::StartAnew;
        return Fetched::Whole;
    case kPartialContent:
        if (!resumes || (result.resourceSize >= 0 && size > result.resourceSize))
            return Fetched::StartAnew;
        if (result.resourceSize < 0 || size == result.resourceSize)
            return Fetched::Whole;
        fail(DownloadResult::End::Transfer, CurlTransfer::shortAnswer(result.httpStatus).text,
             result.httpStatus);
        return Fetched::Failed;
    case kRangeNotSatisfiable:
        return result.resourceSize == offset ? Fetched::Whole : Fetched::StartAnew;
    default:
        fail(DownloadResult::End::Transfer, CurlTransfer::refusal(result.httpStatus).text, result.httpStatus);
        return Fetched::Failed;
    }
}
