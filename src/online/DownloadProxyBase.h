// What every download has in common: the temporary file and its resume, the check of the sum, the rename.
//
// Belongs to the thread that calls Start(); Stop() and Progress() come from any. No two downloads may have
// the same target at one time. How the bytes come is the derived class's matter.
#pragma once

#include "IDownloadProxy.h"

#include <atomic>

class QFile;

class DownloadProxyBase : public IDownloadProxy {
public:
    explicit DownloadProxyBase(DownloadRequest request);

    [[nodiscard]] bool Start() final;
    void Stop() final { m_isStopped = true; }
    [[nodiscard]] DownloadProgress Progress() const final { return {m_received, m_total}; }
    [[nodiscard]] DownloadResult Result() const final { return m_result; }

protected:
    enum class Fetched {
        Whole,
        StartAnew, // what lies in the file does not fit what the server has
        Failed     // fail() has told why
    };

    // Appends to file, which ends at request().resumeOffset, until it is whole.
    [[nodiscard]] virtual Fetched fetch(QFile &file) = 0;

    [[nodiscard]] const DownloadRequest &request() const { return m_request; }
    [[nodiscard]] bool isStopped() const { return m_isStopped; }
    void report(qint64 received, qint64 total);
    void fail(DownloadResult::End end, const QString &text, long httpStatus = 0);

private:
    [[nodiscard]] bool fetchWhole(const QString &path);
    [[nodiscard]] bool hasExpectedSum(const QString &path);
    [[nodiscard]] bool moveToTarget(const QString &path);

    DownloadRequest m_request;
    DownloadResult m_result;
    std::atomic<bool> m_isStopped{false};
    std::atomic<qint64> m_received{0};
    std::atomic<qint64> m_total{-1};
};
