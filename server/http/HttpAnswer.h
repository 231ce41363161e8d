// Hands an answer to libmicrohttpd. Called on the connection's moving thread.
#pragma once

#include "HttpReply.h"

#include <microhttpd.h>

namespace HttpAnswer {

[[nodiscard]] MHD_Result queue(MHD_Connection *connection, HttpReply reply);
// A status without more than its name.
[[nodiscard]] MHD_Result queueStatus(MHD_Connection *connection, int status, const QByteArray &allow = {});

} // namespace HttpAnswer
