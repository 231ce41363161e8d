#include "HttpExchange.h"

#include <new>

namespace {

constexpr int tooLarge = 413;
constexpr int unavailable = 503;

} // namespace

void HttpExchange::append(const char *bytes, size_t size, qint64 largestBody, qint64 largestTogether)
{
    m_received += qint64(size);
    if (refusal != 0)
        return;
    if (m_received > largestBody)
        refusal = tooLarge;
    else if (m_together.load() + qint64(size) > largestTogether)
        refusal = unavailable;
    if (refusal == 0) {
        try {
            m_body.append(bytes, int(size));
            m_together += qint64(size);
        } catch (const std::bad_alloc &) {
            refusal = unavailable;
        }
    }
    if (refusal != 0)
        dropBody();
}

void HttpExchange::dropBody()
{
    m_together -= m_body.size();
    m_body = QByteArray();
}
