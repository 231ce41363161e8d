// Runs slow engine commands off the application's thread, in the order in which they were asked for.
//
// Lives on a thread of its own, which it owns: connect signals to its slots. Has no parent; destroyed from
// another thread, it ends its thread after the command that runs and forgets those that wait.
#pragma once

#include <QObject>
#include <QThread>

#include <atomic>

class QPlayer;

class workObject final : public QObject {
    Q_OBJECT

public:
    // Null: the program's player, at the time of each command.
    explicit workObject(QPlayer *player = nullptr);
    ~workObject() override;

    // For events that come faster than the engine takes them: of those that wait only the last is carried
    // out. Any thread; returns at once.
    void requestRenderSize(int nW, int nH);
    void requestSeek(int nTime);

public slots:
    void slot_resizeRenderSize(int nW, int nH);
    void slot_seek(int nTime);
    void slot_setup3D();
    // Reads the file, which may lie on a slow disc, and selects its subtitles.
    void slot_addSubtitle(QString strPath);

private:
    [[nodiscard]] QPlayer &player() const;

    static constexpr qint64 NothingWaits = -1;

    QPlayer *m_player;
    std::atomic<qint64> m_waitingSize{NothingWaits}; // width above 32 bits of height
    std::atomic<qint64> m_waitingSeek{NothingWaits};
    QThread m_thread;
};
