// A download of one file, as its callers see it. A download is used once per object and may be tried again.
#pragma once

#include "ProxyInfo.h"

#include <QString>

struct DownloadRequest {
    QString url;
    QString targetPath;  // exists only when it is whole; until then the bytes lie in targetPath + "_temp"
    QString expectedMd5; // hexadecimal, in any case; empty: not compared
    int connectTimeoutSeconds{0}; // 0: five minutes
    qint64 resumeOffset{0};       // bytes that lie there already; set by the download itself
    ProxyInfo proxy;
    ProxyKind proxyKind{ProxyKind::None};
};

struct DownloadProgress {
    qint64 received{0}; // bytes, those of earlier tries among them
    qint64 total{-1};   // bytes; -1 while it is not known
};

struct DownloadResult {
    enum class End {
        None, // not ended yet
        Done,
        Stopped,
        Transfer, // the network or the server; what has come is kept for the next try
        File,     // the disc; what could be written is kept for the next try
        Md5       // other bytes than expected; they are removed
    };

    End end{End::None};
    QString text; // the failure in words, for a log; empty when done
    long httpStatus{0};
};

class IDownloadProxy {
public:
    virtual ~IDownloadProxy() = default;

    // Waits for the end of the download, on a thread that may wait. True when the target lies there whole.
    [[nodiscard]] virtual bool Start() = 0;
    // From any thread. A running download ends within about a second, and a later Start() at once.
    virtual void Stop() = 0;
    // From any thread.
    [[nodiscard]] virtual DownloadProgress Progress() const = 0;
    // On the thread of Start(), after it.
    [[nodiscard]] virtual DownloadResult Result() const = 0;
};
