// Posts a form and keeps the answer: usage records and what asks for news.
//
// Owns its transfer handle, so a client that posts several times keeps its connection. It belongs to one
// thread, never the GUI thread: Perform() waits for the answer. Stop() may be called from any.
#pragma once

#include "CurlTransfer.h"

#include <QByteArray>
#include <QString>

#include <atomic>

class HttpPostClient final {
public:
    // certificateFolder: where the certificate file is looked for; empty: the program's own folder.
    explicit HttpPostClient(QString certificateFolder = {});

    void SetUrl(const QString &address);
    // Fields go out in the order they came, as UTF-8, and stay for the next Perform().
    void AddField(const QString &name, const QByteArray &value);
    void ClearFields() { m_formFields.clear(); }
    // Seconds for a whole call; 0 means no limit.
    void SetTimeout(int seconds) { m_timeoutSeconds = seconds; }
    void SetProxy(const ProxyRoute &route) { m_proxy = route; }

    // False when there was no answer, it was larger than 64 MiB, or its status lies outside 200 to 299; the
    // log tells why. The answer's body stays readable.
    [[nodiscard]] bool Perform();
    // The running call ends within about a second, and every later one at once.
    void Stop() { m_isStopped = true; }

    [[nodiscard]] QByteArray Response() const { return m_responseBody; }
    // 0 while there is no answer.
    [[nodiscard]] long HttpStatus() const { return m_httpStatus; }

private:
    CurlTransfer m_curl;
    QString m_certificateFolder;
    QString m_url;
    bool m_verifyPeer{false};
    QList<FormField> m_formFields;
    ProxyRoute m_proxy;
    int m_timeoutSeconds{0};
    QByteArray m_responseBody;
    long m_httpStatus{0};
    std::atomic<bool> m_isStopped{false};
};
