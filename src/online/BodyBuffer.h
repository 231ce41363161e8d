// How an answer that is kept in memory is taken in: bounded, and by which status it counts. Any thread.
#pragma once

#include "CurlTransfer.h"

namespace BodyBuffer {

inline constexpr qint64 MaximumBytes = 64 * 1024 * 1024;

// Appends to body until the bound, then ends the transfer. body outlives the transfer.
[[nodiscard]] inline CurlTransfer::Writer appendTo(QByteArray &body)
{
    return [&body](const char *data, qint64 size) {
        if (body.size() + size > MaximumBytes)
            return false;
        body.append(data, int(size));
        return true;
    };
}

[[nodiscard]] inline bool isSuccess(long httpStatus)
{
    return httpStatus >= 200 && httpStatus < 300;
}

} // namespace BodyBuffer
