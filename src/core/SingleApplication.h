// The application object. Keeps a local server on which later copies of the program hand over their command
// line and on which the updater talks to the player; tells the updater what the player has to say. Owns the
// server. Nothing here waits: neither for a peer nor for the disc that a handed-over path lies on; only the
// start does, for another copy, within a budget. GUI thread.
#pragma once

#include "CommunicationManager.h"
#include "WaitBudget.h"

#include <QApplication>
#include <QString>
#include <QTimer>

#include <functional>

class HandedOverPaths;
class QLocalServer;

class SingleApplication final : public QApplication {
    Q_OBJECT

public:
    // What a copy that finds another one waits for it, all waits together, and what of it is kept for the
    // hand-over itself.
    static constexpr int StartWaitMs = 500;
    static constexpr int HandOverShareMs = 100;

    // Argument vector as the entry point got it; both must live as long as the object.
    SingleApplication(int &argc, char **argv);
    ~SingleApplication() override;

    // True when another live copy serves the name.
    [[nodiscard]] bool otherCopyServes() const { return isRunning; }
    [[nodiscard]] bool isListening() const;
    [[nodiscard]] QString name() const { return serverName; }

    [[nodiscard]] WaitBudget &startWaits() { return m_startWaits; }

    // For the copy that has been found to be the first: serves the name now, or as soon as whoever still
    // holds it lets go.
    void claimServer();
    // For a copy that is not: a server that answers its own hand-over would swallow it.
    void releaseServer();

    // Told once for each file that another copy hands over, before it is played.
    void setOutsideSourceSink(std::function<void()> sink);

signals:
    // The last file that comes while nobody is connected is kept and given on to who connects then.
    void signal_playOutFile(QString path);
    void signal_otherWantRunning();

public slots:
    void slot_newLocalConnection();
    void slot_socketReadyRead();
    void SLOT_sendMsgToUpdate(SendMsgType type);
    void SLOT_sendBkImgChanged(QString imgPath);

protected:
    void connectNotify(const QMetaMethod &signal) override;

private:
    void listen(WaitBudget &budget);
    void tryAgain();
    void playFile(const QString &path);
    void playKeptFile();
    void passOn(int type);
    void sendToUpdater(const QString &text);

    bool isRunning{false};
    QLocalServer *server{nullptr};
    QString serverName;
    int timeoutMs{300};
    WaitBudget m_startWaits{StartWaitMs, HandOverShareMs};
    QTimer m_retry;
    HandedOverPaths *m_paths;
    QString m_keptFile;
    std::function<void()> m_outsideSource;
};
