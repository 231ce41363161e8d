#include "HttpTransport.h"

#include "online/HttpHelpers.h"

LibraryReply HttpTransport::postJson(const QString &url, const QByteArray &body, int timeoutSeconds)
{
    if (m_isStopped)
        return {};
    const HttpResult result = PostJson(url, body, timeoutSeconds, &m_isStopped);
    return {result.isOk(), result.bytes};
}
