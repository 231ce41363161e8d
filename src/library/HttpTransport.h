// The way to the media server over HTTP on the loopback interface. Any thread, many at once.
#pragma once

#include "LibraryTransport.h"

#include <atomic>

class HttpTransport final : public LibraryTransport {
public:
    [[nodiscard]] LibraryReply postJson(const QString &url, const QByteArray &body,
                                        int timeoutSeconds) override;
    void stop() override { m_isStopped = true; }

private:
    std::atomic<bool> m_isStopped{false};
};
