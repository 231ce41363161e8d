// The two forms in which lists are answered, and the check that their library is the asked one.
#pragma once

#include "Keys.h"
#include "RecordJson.h"
#include "RpcReply.h"
#include "records/ListRequest.h"

namespace ListReplies {

// {"movieTotal": n, "movieList": [...]}
template<typename Record>
[[nodiscard]] RpcReply withTotal(QLatin1String totalKey, QLatin1String listKey, const Page<Record> &page)
{
    return RpcReply::good(QJsonObject{{totalKey, page.total}, {listKey, RecordJson::array(page.rows)}});
}

// {"limits": {"start": s, "end": e, "total": n}, "groups": [...]}, with the bounds of what the list really
// holds.
template<typename Record>
[[nodiscard]] RpcReply withLimits(QLatin1String listKey, const Page<Record> &page, const ListRequest &request)
{
    const int start = qMin(request.start, page.total);
    const QJsonObject limits{
        {Keys::start, start}, {Keys::end, qBound(start, request.end, page.total)}, {Keys::total, page.total}};
    return RpcReply::good(QJsonObject{{Keys::limits, limits}, {listKey, RecordJson::array(page.rows)}});
}

[[nodiscard]] inline RpcReply unknownLibrary(int id)
{
    return RpcReply::failed(QStringLiteral("there is no such library: %1").arg(id));
}

} // namespace ListReplies
