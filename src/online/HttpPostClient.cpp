#include "HttpPostClient.h"

#include "BodyBuffer.h"
#include "CertificateFile.h"

#include "core/ApplicationInfoManager.h"
#include "core/LogHandler.h"

HttpPostClient::HttpPostClient(QString certificateFolder)
    : m_certificateFolder(std::move(certificateFolder))
{
    if (m_certificateFolder.isEmpty())
        m_certificateFolder = ApplicationInfoManager::instance()->applicationFolder();
}

void HttpPostClient::SetUrl(const QString &address)
{
    m_url = address;
    m_verifyPeer = CurlTransfer::isSecured(address);
}

void HttpPostClient::AddField(const QString &name, const QByteArray &value)
{
    m_formFields.append({name.toUtf8(), value});
}

bool HttpPostClient::Perform()
{
    TransferRequest request;
    request.url = m_url;
    request.method = TransferRequest::Method::PostForm;
    request.formFields = m_formFields;
    request.proxy = m_proxy;
    request.timeoutSeconds = m_timeoutSeconds;
    if (m_verifyPeer)
        request.certificateFile = CertificateFile::find(m_certificateFolder);

    m_responseBody.clear();
    bool isFull = false;
    TransferResult result = m_curl.run(request, BodyBuffer::appendTo(m_responseBody, isFull),
                                       [this](qint64, qint64) { return !m_isStopped; });
    m_httpStatus = result.httpStatus;
    if (result.end == TransferResult::End::Done && !BodyBuffer::isSuccess(result.httpStatus))
        result = CurlTransfer::refusal(result.httpStatus);
    if (result.end == TransferResult::End::Done)
        return true;
    const QString text = isFull ? BodyBuffer::tooLong(result.text, BodyBuffer::UsualBytes) : result.text;
    logPrintf("error curl post: %s, http status code: %ld\n", text.toLocal8Bit().constData(),
              result.httpStatus);
    return false;
}
