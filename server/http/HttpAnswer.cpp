#include "HttpAnswer.h"

#include <memory>

namespace HttpAnswer {

namespace {

struct DestroyResponse {
    void operator()(MHD_Response *response) const { MHD_destroy_response(response); }
};
using ResponsePointer = std::unique_ptr<MHD_Response, DestroyResponse>;

void freeBytes(void *bytes)
{
    delete static_cast<QByteArray *>(bytes);
}

ResponsePointer responseOf(HttpReply &reply)
{
    if (reply.file.isOpen()) {
        const auto size = uint64_t(reply.file.size());
        return ResponsePointer(MHD_create_response_from_fd64(size, reply.file.release()));
    }
    auto bytes = std::make_unique<QByteArray>(std::move(reply.body));
    const auto size = size_t(bytes->size());
    char *data = bytes->data();
    ResponsePointer response(
        MHD_create_response_from_buffer_with_free_callback_cls(size, data, &freeBytes, bytes.get()));
    if (response)
        bytes.release(); // goes with the response
    return response;
}

} // namespace

MHD_Result queue(MHD_Connection *connection, HttpReply reply)
{
    const ResponsePointer response = responseOf(reply);
    if (!response)
        return MHD_NO;
    struct Header {
        const char *name;
        QByteArray value;
    };
    const Header headers[] = {
        {MHD_HTTP_HEADER_CONTENT_TYPE, reply.contentType},
        {MHD_HTTP_HEADER_ALLOW, reply.allow},
        {"X-Content-Type-Options", "nosniff"},
        {"Cross-Origin-Resource-Policy", "same-origin"},
    };
    for (const Header &header : headers) {
        if (!header.value.isEmpty())
            MHD_add_response_header(response.get(), header.name, header.value.constData());
    }
    return MHD_queue_response(connection, unsigned(reply.status), response.get());
}

MHD_Result queueStatus(MHD_Connection *connection, int status, const QByteArray &allow)
{
    HttpReply reply;
    reply.status = status;
    reply.contentType = "text/plain; charset=UTF-8";
    reply.body = QByteArray(MHD_get_reason_phrase_for(unsigned(status))) + '\n';
    reply.allow = allow;
    return queue(connection, std::move(reply));
}

} // namespace HttpAnswer
