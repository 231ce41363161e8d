// One connection to the local server: collects the peer's text until it is whole and bounds what a peer may
// cost. The text is whole when the peer closes, or when it has said something and then nothing for a moment
// (a peer that waits for the answer). A peer that says too much or nothing at all is dropped. Owns the
// socket, and deletes itself when the connection is over. GUI thread.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

class QLocalSocket;

struct LocalPeerLimits {
    int maxBytes{64 * 1024};
    int quietMs{200};
    // From the connection on, whatever the peer does.
    int totalMs{5000};
};

class LocalPeer final : public QObject {
    Q_OBJECT

public:
    LocalPeer(QLocalSocket *socket, const LocalPeerLimits &limits, QObject *parent);
    ~LocalPeer() override;

    // The whole text, once complete.
    [[nodiscard]] QString text() const;

    // Sends the answer as far as the peer still listens, and closes.
    void answerAndClose(const QByteArray &answer);
    void close();

signals:
    void complete();

private:
    void readMore();
    void finish();
    void drop(const char *reason);

    QLocalSocket *m_socket;
    LocalPeerLimits m_limits;
    QByteArray m_received;
    QTimer m_quiet;
    QTimer m_total;
    bool m_over{false};
};
