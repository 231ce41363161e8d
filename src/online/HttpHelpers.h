// Short calls of a local service that answers in JSON: each has a handle of its own and goes there directly,
// never through a proxy.
//
// Any thread; the call waits for its answer, so the caller chooses where it may wait. A failure is logged and
// told by the result, never thrown.
#pragma once

#include "BodyBuffer.h"
#include "HttpResult.h"

#include <atomic>

// body goes out with "Content-Type:application/json;charset=UTF-8". timeoutSeconds: for the whole call, 0
// means no limit. stop: when not null, a call ends within about a second after another thread has set it.
// longestAnswer: bytes; a longer one ends the call, and the log tells the bound.
[[nodiscard]] HttpResult PostJson(const QString &url, const QByteArray &body, int timeoutSeconds,
                                  const std::atomic<bool> *stop = nullptr,
                                  qint64 longestAnswer = BodyBuffer::UsualBytes);

[[nodiscard]] HttpResult GetText(const QString &url, int timeoutSeconds,
                                 const std::atomic<bool> *stop = nullptr,
                                 qint64 longestAnswer = BodyBuffer::UsualBytes);
