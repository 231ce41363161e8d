#include "HttpTransport.h"

#include "online/HttpHelpers.h"

namespace {

// The songs come in one answer, some 450 bytes each: room for two million. The server is the player's own.
constexpr qint64 kLongestAnswer = 1024LL * 1024 * 1024;

} // namespace

LibraryReply HttpTransport::postJson(const QString &url, const QByteArray &body, int timeoutSeconds)
{
    if (m_isStopped)
        return {};
    const HttpResult result = PostJson(url, body, timeoutSeconds, &m_isStopped, kLongestAnswer);
    return {result.isOk(), result.bytes};
}
