// The application object. Keeps a local server on which later copies of the program hand over their command
// line and on which the updater talks to the player; tells the updater what the player has to say. Owns the
// server. Nothing here waits: neither for a peer nor for the disc that a handed-over path lies on. GUI
// thread.
#pragma once

#include "CommunicationManager.h"

#include <QApplication>
#include <QString>
#include <QTimer>

#include <functional>

class QLocalServer;
class ThreadWorker;

class SingleApplication final : public QApplication {
    Q_OBJECT

public:
    // Argument vector as the entry point got it; both must live as long as the object.
    SingleApplication(int &argc, char **argv);
    ~SingleApplication() override;

    // True when another live copy serves the name.
    [[nodiscard]] bool otherCopyServes() const { return isRunning; }
    [[nodiscard]] bool isListening() const;
    [[nodiscard]] QString name() const { return serverName; }

    // For the copy that has been found to be the first: serves the name now, or as soon as whoever still
    // holds it lets go.
    void claimServer();
    // For a copy that is not: a server that answers its own hand-over would swallow it.
    void releaseServer();

    // Told once for each file that another copy hands over, before it is played.
    void setOutsideSourceSink(std::function<void()> sink);

signals:
    void signal_playOutFile(QString path);
    void signal_otherWantRunning();

public slots:
    void slot_newLocalConnection();
    void slot_socketReadyRead();
    void SLOT_sendMsgToUpdate(SendMsgType type);
    void SLOT_sendBkImgChanged(QString imgPath);

private:
    void listen();
    void playIfFile(const QString &path);
    void passOn(int type);
    void sendToUpdater(const QString &text);

    bool isRunning{false};
    QLocalServer *server{nullptr};
    QString serverName;
    int timeoutMs{300};
    QTimer m_retry;
    ThreadWorker *m_fileTest{nullptr};
    std::function<void()> m_outsideSource;
};
