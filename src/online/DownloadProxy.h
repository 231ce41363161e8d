// A download over HTTP or HTTPS. It goes on where an earlier one was cut off, as far as the server can.
//
// Same thread rules as its base. The handle is its own.
#pragma once

#include "CurlTransfer.h"
#include "DownloadProxyBase.h"

class DownloadProxy final : public DownloadProxyBase {
public:
    static constexpr int kStallSeconds = 20;

    // stallSeconds: so long without a byte a second fails the download.
    explicit DownloadProxy(DownloadRequest request, int stallSeconds = kStallSeconds);

protected:
    [[nodiscard]] Fetched fetch(QFile &file) override;

private:
    [[nodiscard]] ProxyRoute route() const;
    [[nodiscard]] Fetched judge(const TransferResult &result, qint64 size);

    CurlTransfer m_curl;
    int m_stallSeconds;
};
