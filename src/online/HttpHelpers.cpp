#include "HttpHelpers.h"

#include "CertificateFile.h"

#include "core/ApplicationInfoManager.h"

#include <QDebug>

namespace {

constexpr char kJsonHeader[] = "Content-Type:application/json;charset=UTF-8";

HttpResult call(TransferRequest request, int timeoutSeconds, const std::atomic<bool> *stop,
                qint64 longestAnswer)
{
    request.headers = {kJsonHeader};
    request.timeoutSeconds = timeoutSeconds;
    if (CurlTransfer::isSecured(request.url))
        request.certificateFile =
            CertificateFile::find(ApplicationInfoManager::instance()->applicationFolder());

    CurlTransfer::Progress progress;
    if (stop != nullptr)
        progress = [stop](qint64, qint64) { return !*stop; };
    HttpResult answer;
    bool isFull = false;
    CurlTransfer curl;
    TransferResult result =
        curl.run(request, BodyBuffer::appendTo(answer.bytes, isFull, longestAnswer), progress);
    if (result.end == TransferResult::End::Done && !BodyBuffer::isSuccess(result.httpStatus))
        result = CurlTransfer::refusal(result.httpStatus);
    answer.httpStatus = result.httpStatus;
    if (result.end == TransferResult::End::Done)
        return answer;
    answer.error = result.code;
    answer.errorText = isFull ? BodyBuffer::tooLong(result.text, longestAnswer) : result.text;
    qInfo().noquote() << QStringLiteral("error curl get Code %1 : %2").arg(result.code).arg(answer.errorText);
    return answer;
}

} // namespace

HttpResult PostJson(const QString &url, const QByteArray &body, int timeoutSeconds,
                    const std::atomic<bool> *stop, qint64 longestAnswer)
{
    TransferRequest request;
    request.url = url;
    request.method = TransferRequest::Method::PostBody;
    request.body = body;
    return call(std::move(request), timeoutSeconds, stop, longestAnswer);
}

HttpResult GetText(const QString &url, int timeoutSeconds, const std::atomic<bool> *stop,
                   qint64 longestAnswer)
{
    TransferRequest request;
    request.url = url;
    return call(std::move(request), timeoutSeconds, stop, longestAnswer);
}
