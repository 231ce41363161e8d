// What the queue keeps over a restart: its sources, and how they are sorted and repeated.
//
// Holds the map of the settings in memory and writes it whole, and only when it has changed. The settings
// write a file beside the old one and change them over, so a crash in the middle leaves the last queue. A
// while after a change the map is written on a worker, so that a crash costs a moment at most. Does not own
// the settings, which outlive it. GUI thread.
#pragma once

#include <QSet>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>

#include <memory>

class SettingsManager;
class ThreadWorker;

class QueueStore final : public QObject {
    Q_OBJECT

public:
    // More sources than these are not taken.
    static constexpr int Most = 100000;
    static constexpr int SaveSoonMs = 5000;

    explicit QueueStore(SettingsManager &settings, QObject *parent = nullptr);
    ~QueueStore() override;

    // Reads the stored queue; rubbish in it is read around. Gives the paths in their stored order.
    QStringList load();

    // Those of the paths that are new and usable, now part of the queue.
    QStringList take(const QStringList &paths);
    void remove(const QStringList &paths);
    void clear();
    [[nodiscard]] bool contains(const QString &path) const;
    [[nodiscard]] int count() const { return m_map.size(); }
    [[nodiscard]] const QVariantMap &map() const { return m_map; }

    // Writes the map, unless what is stored is the same. Waits for the disk: for a window that closes.
    void save();
    [[nodiscard]] bool isChanged() const { return m_isChanged; }
    void setSaveSoonMs(int milliseconds) { m_saveSoon.setInterval(milliseconds); }

    // Numbers as they are stored; what is no number counts as 0.
    [[nodiscard]] int loopType() const;
    void setLoopType(int type);
    [[nodiscard]] int sortType() const;
    void setSortType(int type);

signals:
    // The map has been written by itself.
    void savedSoon();

private:
    void changed();
    void saveOnWorker();

    SettingsManager &m_settings;
    QVariantMap m_map;
    QSet<QString> m_keys;
    QTimer m_saveSoon;
    std::unique_ptr<ThreadWorker> m_worker;
    int m_writing{0};
    bool m_isChanged{false};
};
