// Feeds arbitrary bytes to the parser of requests and to the checker of parameters.
#include "rpc/IdListDocument.h"
#include "rpc/Keys.h"
#include "rpc/ParameterChecker.h"
#include "rpc/RequestParser.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

const QVector<ParamRow> &rows()
{
    static const QVector<ParamRow> all{
        {Keys::idFile, ParamType::Integer, Need::Optional},
        {Keys::title, ParamType::Text, Need::Optional},
        {Keys::port, ParamType::LooseText, Need::Optional},
        {Keys::name, ParamType::Document, Need::Optional},
        {Keys::deleteFile, ParamType::Flag, Need::Optional},
        {Keys::limits, ParamType::Limits, Need::Optional},
        {Keys::sort, ParamType::Sort, Need::Optional},
        {Keys::filter, ParamType::Filter, Need::Optional},
    };
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > std::size_t(RequestParser::LargestBody))
        return 0;
    const QByteArray body(reinterpret_cast<const char *>(data), int(size));
    const ParsedRequest parsed = RequestParser::parse(body);
    if (parsed.isGood()) {
        const CheckedParams checked = ParameterChecker::check(rows(), parsed.request.params);
        const ListRequest &list = checked.params.list();
        if (checked.isGood() && (list.start < 0 || list.end < list.start))
            std::abort();
    }
    const IdList ids = IdListDocument::parse(QString::fromUtf8(body));
    if (!ids.error.isEmpty() && !ids.ids.isEmpty())
        std::abort();
    return 0;
}
