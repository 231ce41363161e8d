// How an answer that is kept in memory is taken in: bounded, and by which status it counts. Any thread.
#pragma once

#include "CurlTransfer.h"

#include <QString>

namespace BodyBuffer {

inline constexpr qint64 UsualBytes = 64 * 1024 * 1024;

// Appends to body until it would be longer than the bound, then ends the transfer and says so in isFull. Both
// outlive the transfer. The bound stays below 2 GiB, which is all that a body can hold.
[[nodiscard]] inline CurlTransfer::Writer appendTo(QByteArray &body, bool &isFull, qint64 bound = UsualBytes)
{
    return [&body, &isFull, bound](const char *data, qint64 size) {
        isFull = body.size() + size > bound;
        if (isFull)
            return false;
        body.append(data, int(size));
        return true;
    };
}

// The words for an answer that was ended at its bound: those of the transfer would not tell why.
[[nodiscard]] inline QString tooLong(const QString &words, qint64 bound)
{
    return QStringLiteral("%1 (the answer is longer than %2 bytes)").arg(words).arg(bound);
}

[[nodiscard]] inline bool isSuccess(long httpStatus)
{
    return httpStatus >= 200 && httpStatus < 300;
}

} // namespace BodyBuffer
