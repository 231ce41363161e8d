#include "HttpRoute.h"

#include <algorithm>

namespace HttpRoutes {

namespace {

constexpr char rpcPath[] = "/jsonrpc";
constexpr char imagePath[] = "/image/";
constexpr char originScheme[] = "http://";
constexpr int longestPort = 5;

constexpr int badRequest = 400;
constexpr int forbidden = 403;
constexpr int notFound = 404;
constexpr int notAllowed = 405;

bool isPort(const QByteArray &text)
{
    return !text.isEmpty() && text.size() <= longestPort
           && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isOwnOrigin(const QByteArray &origin)
{
    return origin.startsWith(originScheme) && isLoopback(origin.mid(int(sizeof originScheme) - 1));
}

HttpRoute refused(int status, const QByteArray &allow = {})
{
    return {HttpRoute::Target::Refused, status, allow, {}};
}

} // namespace

bool isLoopback(const QByteArray &host)
{
    const QByteArray name = host.trimmed().toLower();
    for (const QByteArray own : {"127.0.0.1", "localhost", "[::1]"}) {
        if (name == own)
            return true;
        if (name.startsWith(own + ':') && isPort(name.mid(own.size() + 1)))
            return true;
    }
    return false;
}

HttpRoute decide(const HttpHead &head)
{
    if (head.version != "HTTP/1.1" && head.version != "HTTP/1.0")
        return refused(badRequest);
    if (head.hosts.size() != 1 || !isLoopback(head.hosts.first()))
        return refused(forbidden);
    if (!std::all_of(head.origins.begin(), head.origins.end(), isOwnOrigin))
        return refused(forbidden);
    if (head.path == rpcPath) {
        if (head.method != "POST")
            return refused(notAllowed, "POST");
        return {HttpRoute::Target::Rpc, 0, {}, {}};
    }
    if (head.path.startsWith(imagePath)) {
        if (head.method != "GET" && head.method != "HEAD")
            return refused(notAllowed, "GET, HEAD");
        return {HttpRoute::Target::Image, 0, {}, head.path.mid(int(sizeof imagePath) - 1)};
    }
    return refused(notFound);
}

} // namespace HttpRoutes
