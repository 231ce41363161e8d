#include "SingleApplication.h"

#include "HandedOverPaths.h"
#include "InstanceLock.h"
#include "InstanceMessage.h"
#include "LocalPeer.h"
#include "ServerNameProbe.h"

#include <QDebug>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMetaMethod>

#include <utility>

namespace {

constexpr int kMaxPeers = 32;
constexpr int kRetryMs = 500;
constexpr int kAnswerType = static_cast<int>(UpdateStatus::NewVersion);

} // namespace

SingleApplication::SingleApplication(int &argc, char **argv)
    : QApplication(argc, argv)
    , server(new QLocalServer(this))
    , serverName(QString::fromLatin1(InstanceMessage::ServerName))
    , m_paths(new HandedOverPaths(this))
{
    connect(server, &QLocalServer::newConnection, this, &SingleApplication::slot_newLocalConnection);
    CommunicationManager *hub = CommunicationManager::instance();
    connect(hub, &CommunicationManager::SIG_sendMsgToUpdate, this, &SingleApplication::SLOT_sendMsgToUpdate);
    connect(hub, &CommunicationManager::SIG_sendChangeBkImg, this, &SingleApplication::SLOT_sendBkImgChanged);
    m_retry.setInterval(kRetryMs);
    connect(&m_retry, &QTimer::timeout, this, &SingleApplication::tryAgain);
    connect(m_paths, &HandedOverPaths::fileFound, this, &SingleApplication::playFile);
    listen(m_startWaits);
}

SingleApplication::~SingleApplication()
{
    m_retry.stop();
    delete m_paths;
    // Peers are children too, and must not report to a half-destroyed object.
    qDeleteAll(findChildren<LocalPeer *>(QString(), Qt::FindDirectChildrenOnly));
    if (server->isListening())
        server->close();
    delete server;
}

bool SingleApplication::isListening() const
{
    return server->isListening();
}

// The name of a live copy is never taken away: a socket file is removed only when nobody answers behind it,
// and two copies that start at once do this one after the other.
void SingleApplication::listen(WaitBudget &budget)
{
    const InstanceLock lock(budget);
    const int probeMs = qMin(timeoutMs, budget.beforeLastMs());
    isRunning = budget.spend([&] { return probeServerName(serverName, probeMs); }) == ServerState::Alive;
    if (isRunning)
        return;
    if (!server->listen(serverName) && server->serverError() == QAbstractSocket::AddressInUseError) {
        QLocalServer::removeServer(serverName);
        server->listen(serverName);
    }
    if (!server->isListening())
        qInfo() << "[Process] local server does not listen:" << server->errorString();
}

void SingleApplication::claimServer()
{
    if (!server->isListening())
        listen(m_startWaits);
    if (server->isListening())
        m_retry.stop();
    else
        m_retry.start();
}

void SingleApplication::tryAgain()
{
    m_startWaits = WaitBudget(timeoutMs);
    claimServer();
}

void SingleApplication::releaseServer()
{
    m_retry.stop();
    if (server->isListening())
        server->close();
}

void SingleApplication::setOutsideSourceSink(std::function<void()> sink)
{
    m_outsideSource = std::move(sink);
}

void SingleApplication::slot_newLocalConnection()
{
    while (QLocalSocket *socket = server->nextPendingConnection()) {
        if (findChildren<LocalPeer *>(QString(), Qt::FindDirectChildrenOnly).size() >= kMaxPeers) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        auto *peer = new LocalPeer(socket, {}, this);
        connect(peer, &LocalPeer::complete, this, &SingleApplication::slot_socketReadyRead);
    }
}

void SingleApplication::slot_socketReadyRead()
{
    auto *peer = qobject_cast<LocalPeer *>(sender());
    if (!peer)
        return;
    const InstanceMessage::Parsed message = InstanceMessage::parse(peer->text());
    switch (message.kind) {
    case InstanceMessage::Kind::BrokenTag:
        qInfo() << "[Process] message of the updater not understood";
        peer->close();
        return;
    case InstanceMessage::Kind::Tagged:
        passOn(message.type);
        peer->close();
        return;
    case InstanceMessage::Kind::Activate:
        emit signal_otherWantRunning();
        break;
    case InstanceMessage::Kind::Text:
        m_paths->add(message.payload);
        break;
    }
    peer->answerAndClose(InstanceMessage::Greeting);
}

void SingleApplication::playFile(const QString &path)
{
    if (!isSignalConnected(QMetaMethod::fromSignal(&SingleApplication::signal_playOutFile))) {
        // The program still asks for its mode or tells of a file that it lacks.
        m_keptFile = path;
        return;
    }
    if (m_outsideSource)
        m_outsideSource();
    emit signal_playOutFile(path);
    emit signal_otherWantRunning();
}

void SingleApplication::connectNotify(const QMetaMethod &signal)
{
    // Queued: who connects is at its start.
    if (signal == QMetaMethod::fromSignal(&SingleApplication::signal_playOutFile))
        QMetaObject::invokeMethod(this, &SingleApplication::playKeptFile, Qt::QueuedConnection);
}

void SingleApplication::playKeptFile()
{
    const QString path = std::exchange(m_keptFile, {});
    if (!path.isEmpty())
        playFile(path);
}

void SingleApplication::passOn(int type)
{
    if (type < static_cast<int>(UpdateStatus::Checking) || type > static_cast<int>(UpdateStatus::Failed))
        return;
    emit CommunicationManager::instance()->SIG_updateStatusIsChanged(static_cast<UpdateStatus>(type));
    if (type == kAnswerType)
        SLOT_sendMsgToUpdate(SendMsgType::Answer);
}

void SingleApplication::SLOT_sendMsgToUpdate(SendMsgType type)
{
    sendToUpdater(InstanceMessage::tagged(type));
}

void SingleApplication::SLOT_sendBkImgChanged(QString imgPath)
{
    sendToUpdater(InstanceMessage::tagged(SendMsgType::BackgroundImage, imgPath));
}

// Written when the connection is there; an updater that does not take it within the time is given up
// silently.
void SingleApplication::sendToUpdater(const QString &text)
{
    auto *socket = new QLocalSocket(this);
    connect(socket, &QLocalSocket::connected, socket, [socket, text] {
        socket->write(text.toLocal8Bit());
        socket->flush();
        socket->disconnectFromServer();
    });
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::errorOccurred, socket, &QObject::deleteLater);
    QTimer::singleShot(timeoutMs, socket, &QObject::deleteLater);
    socket->connectToServer(QString::fromLatin1(InstanceMessage::UpdaterServerName), QIODevice::ReadWrite);
}
