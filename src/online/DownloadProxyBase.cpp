#include "DownloadProxyBase.h"

#include "core/LogHandler.h"

#include <QCryptographicHash>
#include <QFile>

#include <filesystem>
#include <system_error>

namespace {

constexpr char kTempSuffix[] = "_temp";
constexpr int kReadBytes = 256 * 1024;
// A server that can't resume is asked once more, for all of it.
constexpr int kRounds = 2;

std::filesystem::path systemPath(const QString &path)
{
    return std::filesystem::u8path(path.toStdString());
}

} // namespace

DownloadProxyBase::DownloadProxyBase(DownloadRequest request)
    : m_request(std::move(request))
{
}

bool DownloadProxyBase::Start()
{
    m_result = {};
    const QString path = m_request.targetPath + QLatin1String(kTempSuffix);
    bool isDone = false;
    if (m_isStopped)
        fail(DownloadResult::End::Stopped, QStringLiteral("stopped before it began"));
    else
        isDone = fetchWhole(path) && hasExpectedSum(path) && moveToTarget(path);
    if (isDone)
        m_result.end = DownloadResult::End::Done;
    return isDone;
}

bool DownloadProxyBase::fetchWhole(const QString &path)
{
    // Without a buffer of its own, so that a full disc is known at the write and the size is the truth.
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Unbuffered)) {
        fail(DownloadResult::End::File, file.errorString());
        return false;
    }
    Fetched fetched = Fetched::StartAnew;
    for (int round = 0; round < kRounds && fetched == Fetched::StartAnew; ++round) {
        if (round > 0 && !file.resize(0)) {
            fail(DownloadResult::End::File, file.errorString());
            return false;
        }
        m_request.resumeOffset = file.size();
        report(m_request.resumeOffset, -1);
        fetched = fetch(file);
    }
    if (fetched == Fetched::StartAnew)
        fail(DownloadResult::End::Transfer, QStringLiteral("the server sends no whole file"));
    const bool isEmpty = file.size() == 0;
    file.close();
    // There is nothing to resume in an empty file.
    if (fetched != Fetched::Whole && isEmpty)
        file.remove();
    return fetched == Fetched::Whole;
}

bool DownloadProxyBase::hasExpectedSum(const QString &path)
{
    if (m_request.expectedMd5.isEmpty())
        return true;
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Md5);
    bool isRead = file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    QByteArray piece(kReadBytes, Qt::Uninitialized);
    for (qint64 size = 1; isRead && size > 0;) {
        if (m_isStopped) {
            fail(DownloadResult::End::Stopped, QStringLiteral("stopped while its sum was made"));
            return false;
        }
        size = file.read(piece.data(), piece.size());
        isRead = size >= 0;
        if (size > 0)
            hash.addData(piece.constData(), int(size));
    }
    if (!isRead) {
        fail(DownloadResult::End::File, file.errorString());
        return false;
    }
    const QString sum = QString::fromLatin1(hash.result().toHex());
    if (sum.compare(m_request.expectedMd5.trimmed(), Qt::CaseInsensitive) == 0)
        return true;
    logPrintf("Download error: Md5 inconsistent.");
    m_result = {DownloadResult::End::Md5, QStringLiteral("the sum is %1").arg(sum), 0};
    file.close();
    // A next try that resumed them would never get better.
    file.remove();
    return false;
}

bool DownloadProxyBase::moveToTarget(const QString &path)
{
    // Replaces an old target in one step, which QFile does not.
    std::error_code error;
    std::filesystem::rename(systemPath(path), systemPath(m_request.targetPath), error);
    if (!error)
        return true;
    fail(DownloadResult::End::File, QString::fromLocal8Bit(error.message().c_str()));
    return false;
}

void DownloadProxyBase::report(qint64 received, qint64 total)
{
    m_received = received;
    m_total = total;
}

void DownloadProxyBase::fail(DownloadResult::End end, const QString &text, long httpStatus)
{
    m_result = {end, text, httpStatus};
    logPrintf("Downloader_info: Failed download file: %s, error code is: %s\n",
              m_request.url.toLocal8Bit().constData(), text.toLocal8Bit().constData());
}
