// Runs slow engine commands off the application's thread, in the order in which they were asked for.
//
// Lives on a thread of its own, which it owns: connect signals to its slots, or directly to its requests. Has
// no parent; destroyed from another thread, it ends its thread after the command that runs and forgets those
// that wait.
#pragma once

#include <QObject>
#include <QThread>

#include <deque>
#include <functional>
#include <mutex>

class QPlayer;

class workObject final : public QObject {
    Q_OBJECT

public:
    // Null: the program's player, at the time of each command.
    explicit workObject(QPlayer *player = nullptr);
    ~workObject() override;

    // Carried out in the order of the requests. Sizes and seeks come faster than the engine takes them: of
    // those that wait one right behind the other only the last is carried out. Any thread; returns at once.
    void requestRenderSize(int nW, int nH);
    void requestSeek(int nTime);
    void requestSetup3D();
    void requestSubtitle(const QString &path);

public slots:
    void slot_resizeRenderSize(int nW, int nH);
    void slot_seek(int nTime);
    void slot_setup3D();
    // Reads the file, which may lie on a slow disc, and selects its subtitles.
    void slot_addSubtitle(QString strPath);

private:
    enum class Kind { RenderSize, Seek, Single };
    struct Command {
        Kind kind{Kind::Single};
        std::function<void()> run;
    };

    void request(Kind kind, std::function<void()> run);
    void runNext();
    [[nodiscard]] QPlayer &player() const;

    QPlayer *m_player;
    std::mutex m_mutex;
    std::deque<Command> m_waiting;
    QThread m_thread;
};
