#include "MetadataHttp.h"

#include <QDebug>
#include <QJsonDocument>

#include <algorithm>
#include <optional>

namespace {

constexpr int kMostRedirects = 4;
constexpr int kOk = 200;
constexpr int kFirstRedirect = 300;
constexpr int kFirstRefusal = 400;
constexpr int kUnauthorised = 401;
constexpr int kForbidden = 403;
constexpr int kNotFound = 404;
constexpr int kTooMany = 429;
constexpr int kFirstFailure = 500;
constexpr int kHttpPort = 80;
constexpr int kHttpsPort = 443;

bool isSecure(const QUrl &url)
{
    return url.scheme() == QLatin1String("https");
}

int portOf(const QUrl &url)
{
    return url.port(isSecure(url) ? kHttpsPort : kHttpPort);
}

bool isWebAddress(const QUrl &url)
{
    return url.isValid() && (isSecure(url) || url.scheme() == QLatin1String("http")) && !url.host().isEmpty()
           && url.userInfo().isEmpty();
}

// An address of server.ini; invalid where it is empty or none.
QUrl readBase(const QString &text, const char *key)
{
    if (text.isEmpty())
        return {};
    QUrl url(text, QUrl::StrictMode);
    if (!isWebAddress(url) || url.hasQuery() || url.hasFragment()) {
        qWarning().noquote() << "[metadata]" << key << "is no web address:" << text;
        return {};
    }
    if (!url.path().endsWith(QLatin1Char('/')))
        url.setPath(url.path() + QLatin1Char('/'));
    return url;
}

QUrl below(const QUrl &base, const QString &path)
{
    QUrl url = base;
    url.setPath(base.path() + path, QUrl::DecodedMode);
    return url;
}

// Keys of the newer kind are signed tokens in three parts, and are not sent in the address.
bool isToken(const QString &key)
{
    return key.count(QLatin1Char('.')) == 2;
}

Outcome outcomeOf(const CurlGet::Reply &reply)
{
    switch (reply.result) {
    case CurlGet::Result::NoConnection:
        return Outcome::Unreachable;
    case CurlGet::Result::TimedOut:
        return Outcome::TimedOut;
    case CurlGet::Result::TooLarge:
        return Outcome::TooLarge;
    case CurlGet::Result::Stopped:
        return Outcome::Stopped;
    case CurlGet::Result::Answered:
        break;
    }
    if (reply.status == kOk)
        return Outcome::Found;
    if (reply.status == kTooMany)
        return Outcome::Busy;
    if (reply.status >= kFirstFailure)
        return Outcome::Failed;
    if (reply.status == kUnauthorised || reply.status == kForbidden)
        return Outcome::Forbidden;
    if (reply.status == kNotFound)
        return Outcome::NotFound;
    if (reply.status >= kFirstRedirect && reply.status < kFirstRefusal)
        return Outcome::Refused;
    return Outcome::Unreadable;
}

// Broken JSON, and JSON of another kind, are no object.
std::optional<QJsonObject> objectOf(const QByteArray &text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    return document.isObject() ? std::make_optional(document.object()) : std::nullopt;
}

bool isWorthAnotherAttempt(Outcome outcome)
{
    return outcome == Outcome::Busy || outcome == Outcome::Failed || outcome == Outcome::Unreachable
           || outcome == Outcome::TimedOut;
}

} // namespace

MetadataHttp::MetadataHttp(const ServerConfiguration &configuration, const QString &cacheFolder,
                           MetadataClock &clock, const Limits &limits)
    : m_endpoint(readBase(configuration.metadataEndpoint, "metadata/endpoint"))
    , m_images(readBase(configuration.metadataImages, "metadata/images"))
    , m_key(configuration.metadataKey.trimmed())
    , m_limits(limits)
    , m_clock(clock)
    , m_cache(cacheFolder, limits.cache)
    , m_rate(limits.requests, limits.windowMs)
{
}

void MetadataHttp::setProxy(const ProxySettings &proxy)
{
    {
        std::lock_guard lock(m_proxyMutex);
        m_proxy = proxy;
    }
    // What could not be reached may be reached this way.
    m_endpointRestsUntil = 0;
    m_imagesRestUntil = 0;
}

Answer<QJsonObject> MetadataHttp::json(const QString &path, const QUrlQuery &query, const MetadataCall &call)
{
    if (!isConfigured())
        return {Outcome::NotConfigured, {}};
    Target target{below(m_endpoint, path), false};
    target.url.setQuery(query);
    const QByteArray question = target.url.toEncoded() + '\n' + call.language.toUtf8();
    if (const auto known = objectOf(m_cache.find(question, m_clock.wallMs())))
        return {Outcome::Found, *known};
    const Answer<QByteArray> answer = fetch(target, call);
    if (!answer.isFound())
        return {answer.outcome, {}};
    const std::optional<QJsonObject> object = objectOf(answer.value);
    if (!object) {
        qWarning().noquote() << "[metadata] no JSON object from" << target.url.path();
        return {Outcome::Unreadable, {}};
    }
    m_cache.keep(question, answer.value, m_clock.wallMs());
    return {Outcome::Found, *object};
}

Answer<QByteArray> MetadataHttp::image(const QString &path, const MetadataCall &call)
{
    if (!hasImages())
        return {Outcome::NotConfigured, {}};
    return fetch(Target{below(m_images, path), true}, call);
}

Answer<QByteArray> MetadataHttp::fetch(const Target &target, const MetadataCall &call)
{
    std::atomic<qint64> &restsUntil = target.isImage ? m_imagesRestUntil : m_endpointRestsUntil;
    if (m_clock.steadyMs() < restsUntil)
        return {Outcome::Unreachable, {}};
    Outcome outcome = Outcome::TimedOut;
    qint64 pauseMs = m_limits.firstPauseMs;
    for (int attempt = 1; attempt <= m_limits.attempts; ++attempt) {
        outcome = waitForTurn(call);
        if (outcome != Outcome::Found)
            break;
        const CurlGet::Reply reply = follow(target, call);
        outcome = outcomeOf(reply);
        if (outcome == Outcome::Found)
            return {outcome, reply.body};
        if (!isWorthAnotherAttempt(outcome))
            break;
        if (attempt == m_limits.attempts) {
            // Thousands of questions must not each wait for a host that is away.
            if (outcome == Outcome::Unreachable || outcome == Outcome::TimedOut)
                restsUntil = m_clock.steadyMs() + m_limits.restMs;
            break;
        }
        const qint64 waitMs = std::max(pauseMs, reply.retryAfterMs);
        pauseMs *= 2;
        const qint64 now = m_clock.steadyMs();
        if (outcome == Outcome::Busy)
            m_rate.holdUntil(now + waitMs); // for all who ask
        if (waitMs > m_limits.longestPauseMs || waitMs > call.deadlineMs - now)
            break;
        if (!m_clock.pass(waitMs, call.stop)) {
            outcome = Outcome::Stopped;
            break;
        }
    }
    if (outcome != Outcome::Stopped && outcome != Outcome::NotFound)
        qWarning().noquote() << "[metadata]" << target.url.path() << '-' << outcomeText(outcome);
    return {outcome, {}};
}

Outcome MetadataHttp::waitForTurn(const MetadataCall &call)
{
    if (call.stop.isRaised())
        return Outcome::Stopped;
    const qint64 now = m_clock.steadyMs();
    if (now >= call.deadlineMs)
        return Outcome::TimedOut;
    const qint64 moment = m_rate.take(now, std::min(call.deadlineMs, now + m_limits.longestPauseMs));
    if (moment < 0)
        return Outcome::Busy;
    if (moment > now && !m_clock.pass(moment - now, call.stop))
        return Outcome::Stopped;
    return Outcome::Found;
}

CurlGet::Reply MetadataHttp::follow(const Target &target, const MetadataCall &call)
{
    QUrl url = target.url;
    if (!target.isImage && !isToken(m_key)) {
        QUrlQuery query(url);
        query.addQueryItem(QStringLiteral("api_key"), QString::fromLatin1(QUrl::toPercentEncoding(m_key)));
        url.setQuery(query);
    }
    for (int redirects = 0;; ++redirects) {
        CurlGet::Reply reply = m_curl.get(requestFor(url, target, call));
        const bool redirected = reply.result == CurlGet::Result::Answered && reply.status >= kFirstRedirect
                                && reply.status < kFirstRefusal && !reply.location.isEmpty();
        if (!redirected || redirects == kMostRedirects)
            return reply;
        const QUrl next = QUrl::fromEncoded(reply.location);
        if (!isOurs(url, next)) {
            qWarning().noquote() << "[metadata] a redirect to another place is not followed:" << next.host();
            return reply;
        }
        url = next;
    }
}

CurlGet::Request MetadataHttp::requestFor(const QUrl &url, const Target &target,
                                          const MetadataCall &call) const
{
    CurlGet::Request request;
    request.url = url.toEncoded();
    request.connectMs = m_limits.connectMs;
    request.wholeMs = std::clamp<qint64>(call.deadlineMs - m_clock.steadyMs(), 1, m_limits.wholeMs);
    request.maxBytes = target.isImage ? m_limits.imageBytes : m_limits.jsonBytes;
    request.stop = &call.stop;
    request.headers << QByteArrayLiteral("User-Agent: QuorinPlayerServer/1.0");
    if (!target.isImage) {
        request.headers << QByteArrayLiteral("Accept: application/json");
        if (isToken(m_key) && url.host() == m_endpoint.host() && portOf(url) == portOf(m_endpoint))
            request.headers << "Authorization: Bearer " + m_key.toLatin1();
    }
    std::lock_guard lock(m_proxyMutex);
    request.proxy = m_proxy;
    return request;
}

bool MetadataHttp::isOurs(const QUrl &from, const QUrl &to) const
{
    if (!isWebAddress(to) || (isSecure(from) && !isSecure(to)))
        return false;
    const QUrl bases[] = {m_endpoint, m_images};
    return std::any_of(std::begin(bases), std::end(bases), [&](const QUrl &base) {
        if (!base.isValid() || base.host() != to.host())
            return false;
        const bool isUpgrade = portOf(base) == kHttpPort && isSecure(to) && portOf(to) == kHttpsPort;
        return portOf(base) == portOf(to) || isUpgrade;
    });
}
