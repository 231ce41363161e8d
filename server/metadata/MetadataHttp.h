// Asks the metadata provider over HTTP: politely (a limit of requests, waiting as long as it asks, some
// attempts), from a cache where the answer is known, and never anybody else.
//
// Owns the cache of answers and the rate limit. Any thread, several at once; a call waits until its deadline
// at the most. Addresses are made of server.ini's endpoint and images alone, and redirects are followed only
// within these two. Without endpoint and key nothing is sent and no socket is opened. The key is in no log
// and no file.
#pragma once

#include "Answer.h"
#include "AnswerCache.h"
#include "CurlGet.h"
#include "MetadataCall.h"
#include "MetadataClock.h"
#include "ProxySettings.h"
#include "RateLimit.h"

#include "base/ServerConfiguration.h"

#include <QJsonObject>
#include <QUrl>
#include <QUrlQuery>

#include <atomic>

class MetadataHttp final {
public:
    struct Limits {
        qint64 connectMs{5000};
        qint64 wholeMs{10000};
        qint64 jsonBytes{8 * 1024 * 1024};
        qint64 imageBytes{16 * 1024 * 1024};
        int attempts{4};
        qint64 firstPauseMs{500}; // doubled from attempt to attempt
        qint64 longestPauseMs{60000};
        qint64 restMs{60000}; // for an address that could not be reached in all attempts
        int requests{40};
        qint64 windowMs{10000};
        AnswerCache::Limits cache{};
    };

    // The clock must outlive this object.
    MetadataHttp(const ServerConfiguration &configuration, const QString &cacheFolder, MetadataClock &clock,
                 const Limits &limits);

    [[nodiscard]] bool isConfigured() const { return m_endpoint.isValid() && !m_key.isEmpty(); }
    [[nodiscard]] bool hasImages() const { return isConfigured() && m_images.isValid(); }

    // path: below the endpoint, without a leading slash. Only a JSON object counts as an answer.
    [[nodiscard]] Answer<QJsonObject> json(const QString &path, const QUrlQuery &query,
                                           const MetadataCall &call);
    // path: below the images' address.
    [[nodiscard]] Answer<QByteArray> image(const QString &path, const MetadataCall &call);

    // From the next request on; an empty host means none.
    void setProxy(const ProxySettings &proxy);

private:
    struct Target {
        QUrl url; // without the key
        bool isImage{false};
    };

    [[nodiscard]] Answer<QByteArray> fetch(const Target &target, const MetadataCall &call);
    [[nodiscard]] Outcome waitForTurn(const MetadataCall &call);
    [[nodiscard]] CurlGet::Reply follow(const Target &target, const MetadataCall &call);
    [[nodiscard]] CurlGet::Request requestFor(const QUrl &url, const Target &target,
                                              const MetadataCall &call) const;
    [[nodiscard]] bool isOurs(const QUrl &from, const QUrl &to) const;

    const QUrl m_endpoint;
    const QUrl m_images;
    const QString m_key;
    const Limits m_limits;
    MetadataClock &m_clock;
    AnswerCache m_cache;
    RateLimit m_rate;
    CurlGet m_curl;
    std::atomic<qint64> m_endpointRestsUntil{0};
    std::atomic<qint64> m_imagesRestUntil{0};
    mutable std::mutex m_proxyMutex;
    ProxySettings m_proxy;
};
