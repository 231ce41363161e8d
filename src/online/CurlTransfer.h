// One request over libcurl, described without its types. No other file speaks to the library.
//
// Owns one handle, whose connections serve the next request to the same host. It belongs to one thread at a
// time; run() waits for the end of the transfer. The library itself is set up once, by whichever thread comes
// first.
#pragma once

#include "ProxyInfo.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <memory>

struct FormField {
    QByteArray name;
    QByteArray value;
};

struct TransferRequest {
    enum class Method { Get, PostForm, PostBody };

    QString url; // http or https, nothing else is spoken
    Method method{Method::Get};
    QByteArray body;             // of PostBody; it outlives the transfer
    QList<FormField> formFields; // of PostForm, sent as multipart/form-data
    QList<QByteArray> headers;
    ProxyRoute proxy;              // without one the connection is direct, whatever the environment says
    QString certificateFile;       // replaces the system's store; empty: the system's
    bool followRedirects{false};   // at most ten, never from https to http
    bool refuseErrorStatus{false}; // the body of a status from 400 on is not written
    qint64 resumeOffset{0};        // bytes; where the answer is to begin
    int timeoutSeconds{0};         // for the whole transfer; 0: no limit
    int connectTimeoutSeconds{0};  // 0: the library's own, five minutes
    int lowSpeedSeconds{0};        // so long under one byte a second ends it; 0: not watched
};

struct TransferResult {
    enum class End { Done, RangeRefused, Failed };

    End end{End::Failed};
    int code{0};              // the library's number, 0 when done
    QString text;             // the library's words for it
    long httpStatus{0};       // of the last answer; 0 without one
    qint64 contentLength{-1}; // bytes as announced; -1: not told
    qint64 resourceSize{-1};  // the whole of what is sent in part, by Content-Range; -1: not told
};

class CurlTransfer final {
public:
    // Takes a piece of the answer; false ends the transfer.
    using Writer = std::function<bool(const char *data, qint64 size)>;
    // Called about once a second and more often while bytes come: bytes of this answer so far, and all of
    // them, 0 when that is not known. False ends the transfer.
    using Progress = std::function<bool(qint64 received, qint64 total)>;

    CurlTransfer();
    ~CurlTransfer();
    CurlTransfer(const CurlTransfer &) = delete;
    CurlTransfer &operator=(const CurlTransfer &) = delete;

    [[nodiscard]] TransferResult run(const TransferRequest &request, const Writer &write,
                                     const Progress &progress = {});

    [[nodiscard]] static bool isSecured(const QString &url);
    // The code that stands for a status that means no success, and its words.
    [[nodiscard]] static TransferResult refusal(long httpStatus);
    // The same for an answer that is shorter than it should be.
    [[nodiscard]] static TransferResult shortAnswer(long httpStatus);

private:
    struct Handle;
    std::unique_ptr<Handle> m_handle;
};
