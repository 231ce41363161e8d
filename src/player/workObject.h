// Runs slow engine commands off the application's thread, in the order in which they were asked for.
//
// Lives on a thread of its own, which it owns: connect signals to its slots. Has no parent; destroyed from
// another thread, it ends its thread after the command that runs and forgets those that wait.
#pragma once

#include <QObject>
#include <QThread>

class QPlayer;

class workObject final : public QObject {
    Q_OBJECT

public:
    // Null: the program's player, at the time of each command.
    explicit workObject(QPlayer *player = nullptr);
    ~workObject() override;

public slots:
    void slot_resizeRenderSize(int nW, int nH);
    void slot_seek(int nTime);
    void slot_setup3D();

private:
    [[nodiscard]] QPlayer &player() const;

    QPlayer *m_player;
    QThread m_thread;
};
