// The hub between the single instance link, the update check and the windows. Signals only; each part emits
// the hub's signals and connects to them, and knows none of the others. Lives on the GUI thread.
#pragma once

#include "Singleton.h"

#include <QObject>
#include <QString>

// What the updater says about its check. The numbers are the message types it sends.
enum class UpdateStatus { Checking = 1, UpToDate = 2, NewVersion = 3, Failed = 4 };

// What the player tells the updater: bring the window up, keep silent while something plays, here I am (the
// answer to its news of a new version), and the background picture has changed.
enum class SendMsgType { Show = 1, Close = 2, Answer = 3, BackgroundImage = 4 };

Q_DECLARE_METATYPE(UpdateStatus)
Q_DECLARE_METATYPE(SendMsgType)

class CommunicationManager final : public QObject, public Singleton<CommunicationManager> {
    Q_OBJECT

signals:
    void SIG_updateStatusIsChanged(UpdateStatus status);
    void SIG_sendMsgToUpdate(SendMsgType type);
    void SIG_sendChangeBkImg(QString imgPath);

private:
    friend class Singleton<CommunicationManager>;
    CommunicationManager();
};
