#include "LocalPeer.h"

#include <QDebug>
#include <QLocalSocket>
#include <QTextStream>

LocalPeer::LocalPeer(QLocalSocket *socket, const LocalPeerLimits &limits, QObject *parent)
    : QObject(parent)
    , m_socket(socket)
    , m_limits(limits)
{
    m_socket->setParent(this);
    // One byte more than allowed, so that too much can be told from just enough.
    m_socket->setReadBufferSize(m_limits.maxBytes + 1);
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(m_limits.quietMs);
    m_total.setSingleShot(true);
    m_total.setInterval(m_limits.totalMs);
    connect(m_socket, &QLocalSocket::readyRead, this, &LocalPeer::readMore);
    connect(m_socket, &QLocalSocket::disconnected, this, &LocalPeer::finish);
    connect(&m_quiet, &QTimer::timeout, this, &LocalPeer::finish);
    connect(&m_total, &QTimer::timeout, this, [this] { drop("takes too long"); });
    m_total.start();
    // What came before the connections were made raises no signal any more.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_socket->bytesAvailable() > 0)
                readMore();
            if (m_socket->state() == QLocalSocket::UnconnectedState)
                finish();
        },
        Qt::QueuedConnection);
}

LocalPeer::~LocalPeer() = default;

QString LocalPeer::text() const
{
    return QTextStream(m_received).readAll();
}

void LocalPeer::readMore()
{
    if (m_over)
        return;
    m_received += m_socket->readAll();
    if (m_received.size() > m_limits.maxBytes) {
        drop("sends too much");
        return;
    }
    m_quiet.start();
}

void LocalPeer::finish()
{
    if (m_over)
        return;
    if (m_socket->bytesAvailable() > 0)
        readMore();
    if (m_over)
        return;
    m_over = true;
    m_quiet.stop();
    m_total.stop();
    if (m_received.isEmpty())
        close();
    else
        emit complete();
}

void LocalPeer::answerAndClose(const QByteArray &answer)
{
    if (m_socket->isOpen() && m_socket->state() == QLocalSocket::ConnectedState) {
        m_socket->write(answer);
        m_socket->flush();
    }
    close();
}

void LocalPeer::close()
{
    m_over = true;
    m_socket->disconnect(this);
    m_socket->close();
    deleteLater();
}

void LocalPeer::drop(const char *reason)
{
    qInfo() << "[Process] local connection dropped: the peer" << reason;
    m_quiet.stop();
    m_total.stop();
    m_over = true;
    m_socket->disconnect(this);
    m_socket->abort();
    deleteLater();
}
