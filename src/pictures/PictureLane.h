// One lane of the picture cache: the keys that wait, the pictures that are there, and the thread that makes
// the ones from the others.
//
// The thread works in rounds: it takes the keys that wait at that time, tries each, and rests for an
// interval, so that a view fills in bursts. A key that failed stays and is tried again in each round until
// clear().
//
// The thread makes images; the pixmap of one is made on the GUI thread when it is first asked for, because
// not every platform can have pixmaps elsewhere. One mutex guards the keys, one the pictures; no thread holds
// both.
#pragma once

#include <QImage>
#include <QMap>
#include <QPixmap>
#include <QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <thread>

class PictureLane final {
public:
    struct Picture {
        QImage image; // until the pixmap is made
        QPixmap pixmap;
    };
    // Pictures that nobody can ask for any more. They hold pixmaps: to be destroyed on the GUI thread.
    using Retired = std::map<QString, std::unique_ptr<Picture>>;

    // Whether somebody still waits for the picture that is being made. Any thread.
    using Wanted = std::function<bool()>;
    // Makes a picture, on the lane's thread; a null image is a failure.
    using Load = std::function<QImage(const QString &key, const Wanted &wanted)>;
    // Tells of a picture that is there now, on the lane's thread.
    using Loaded = std::function<void(int row)>;

    PictureLane(const char *name, Load load, Loaded loaded, std::chrono::milliseconds interval);
    ~PictureLane();
    PictureLane(const PictureLane &) = delete;
    PictureLane &operator=(const PictureLane &) = delete;

    // GUI thread. The picture of the key, or null, and then the row is told of once it is there. A key that
    // waits already keeps the row that it has. The pointer lives as long as the picture: see clear().
    [[nodiscard]] QPixmap *request(int row, const QString &key);
    // Queues the key, without an answer. Any thread.
    void queue(int row, const QString &key);
    // GUI thread. The picture of the key if it is there.
    [[nodiscard]] QPixmap *find(const QString &key);
    // GUI thread. Keeps a picture that was made elsewhere, and answers the one that is kept.
    QPixmap *keep(const QString &key, QImage image);

    // Forgets all keys and pictures. Any thread.
    [[nodiscard]] Retired clear();

    // Asks the thread to end; it does so after the picture it is making. Any thread.
    void askToStop();
    // Asks, and waits. Not on the lane's own thread.
    void stop();

private:
    void run();
    void round();
    void tryKey(const QString &key);
    [[nodiscard]] bool isPending(const QString &key) const;
    [[nodiscard]] static QPixmap *pixmapOf(Picture &picture);

    const char *const m_name;
    const Load m_load;
    const Loaded m_loaded;
    const std::chrono::milliseconds m_interval;

    mutable std::mutex m_pendingMutex;
    std::condition_variable m_wake;
    QMap<QString, int> m_pending;
    std::atomic_bool m_quit{false};

    std::mutex m_cacheMutex;
    Retired m_cache;
    unsigned m_generation{0}; // counts the calls of clear()

    std::set<QString> m_failed; // the thread's own: keys of earlier rounds
    std::thread m_thread;
};
