#include "SingleInstance.h"

#include "InstanceLock.h"
#include "InstanceMessage.h"
#include "SingleApplication.h"

#include <QDeadlineTimer>
#include <QDebug>
#include <QFileInfo>
#include <QLocalSocket>

namespace {

constexpr int kSegmentSize = 1;
constexpr int kTakeOverAttempts = 16;
// Program path and one file.
constexpr int kEntriesWithFile = 2;

} // namespace

SingleInstance::SingleInstance()
    : m_segment(QString::fromLatin1(SegmentKey))
{
}

SingleInstance::~SingleInstance()
{
    release();
}

bool SingleInstance::acquire(WaitBudget &budget)
{
    // Two copies that look after a left-behind segment at once would each take the other for its owner.
    const InstanceLock lock(budget);
    // Who holds it for so long is a copy that starts or hangs at its start: there is another one.
    if (lock.isHeldElsewhere())
        return false;
    // Where segments outlive their processes the last one to detach removes it, and a live owner keeps it
    // from going. The key follows the file that names it, and a new file may meet the segment of yet another
    // copy that crashed.
    for (int attempt = 0; attempt < kTakeOverAttempts; ++attempt) {
        if (createSegment())
            return true;
        if (m_segment.attach())
            m_segment.detach();
    }
    return createSegment();
}

// Only an existing segment means another copy; a machine that can't give any must not lock the user out.
bool SingleInstance::createSegment()
{
    if (m_segment.create(kSegmentSize, QSharedMemory::ReadWrite))
        return true;
    if (m_segment.error() == QSharedMemory::AlreadyExists)
        return false;
    qInfo() << "[Process] no shared memory:" << m_segment.errorString();
    return true;
}

void SingleInstance::release()
{
    if (m_segment.isAttached())
        m_segment.detach();
}

SingleInstance::Outcome SingleInstance::start(SingleApplication &application, const QStringList &arguments)
{
    if (acquire(application.startWaits())) {
        application.claimServer();
        return Outcome::First;
    }
    application.releaseServer();
    const bool isTold =
        handOver(application.name(), handOverText(arguments), application.startWaits().leftMs());
    return isTold ? Outcome::HandedOver : Outcome::OtherCopySilent;
}

QString SingleInstance::handOverText(const QStringList &arguments)
{
    if (arguments.size() != kEntriesWithFile)
        return QString::fromLatin1(InstanceMessage::StartPlayer);
    // The first copy has a working folder of its own.
    const QFileInfo file(arguments.at(1));
    return file.isRelative() && file.exists() ? file.absoluteFilePath() : arguments.at(1);
}

bool SingleInstance::handOver(const QString &serverName, const QString &text, int timeoutMs)
{
    QLocalSocket socket;
    const QDeadlineTimer deadline(timeoutMs);
    socket.connectToServer(serverName, QIODevice::ReadWrite);
    if (!socket.waitForConnected(timeoutMs))
        return false;
    socket.write(text.toLocal8Bit());
    socket.flush();
    while (socket.bytesToWrite() > 0 && !deadline.hasExpired()) {
        if (!socket.waitForBytesWritten(static_cast<int>(deadline.remainingTime())))
            break;
    }
    const bool written = socket.bytesToWrite() == 0;
    socket.disconnectFromServer();
    return written;
}
