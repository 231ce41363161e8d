// The queue without its panel: holds the sources, decides what plays next and keeps the list over restarts.
//
// Owns model, store and the workers that ask the disk and the engine; not the settings. Sources come in
// batches on turns of the event loop, so that a long list does not hold the window up; what is stored knows
// them at once. GUI thread.
#pragma once

#include "DiscTitleReader.h"
#include "PlayQueueModel.h"
#include "QueueOrder.h"
#include "QueueStore.h"

#include "playcontrol/FilePresence.h"
#include "player/QPlayer.h"

#include <QPersistentModelIndex>
#include <QTimer>

#include <deque>

class PlayQueue final : public QObject {
    Q_OBJECT

public:
    // How the queue asks the world; everything has a default but the titles of a disc.
    struct Services {
        DiscTitleReader::Titles titles;
        FilePresence::Exists exists;
        QueueOrder::Random random;
    };

    // What pendingTitle() says while the next entry is being chosen.
    static constexpr int Choosing = -2;
    static constexpr int NoTitle = -1;

    enum class Mark { None, Playing, Paused };

    PlayQueue(SettingsManager &settings, Services services, QObject *parent = nullptr);
    ~PlayQueue() override;

    [[nodiscard]] PlayQueueModel *model() { return &m_model; }
    [[nodiscard]] QueueStore &store() { return m_store; }
    // All sources, those included that have no row yet.
    [[nodiscard]] int count() const { return m_store.count(); }

    // The stored queue; once.
    void load();
    // Sources that are in the queue already stay where they are. before: the row in front of which they come,
    // -1 for the end.
    void add(const QStringList &paths, int before = -1);
    [[nodiscard]] bool isAppending() const { return !m_groups.empty(); }

    // A title stands for its source.
    void remove(const QModelIndexList &indexes);
    void removeAll();
    // Looks at all of them anew and drops those that are gone as their drives answer.
    void removeInvalid();
    void checkPresence();
    [[nodiscard]] bool isChecking() const { return m_isCheckPosted || m_checkTimer.isActive(); }

    void sortBy(int sortType);
    void moveRows(const QVector<int> &rows, int before);
    void setLoopType(int loopType) { m_store.setLoopType(loopType); }
    [[nodiscard]] int loopType() const { return m_store.loopType(); }
    [[nodiscard]] int sortType() const { return m_store.sortType(); }

    // ---- playing
    // Plays what follows, or tells that nothing does. One that has not been looked at yet while the list is
    // being looked through is played when its answer is there, or after two seconds without one: a file that
    // is gone is passed over and does not end the queue.
    void autoPlayNext(const QModelIndex &current);
    [[nodiscard]] bool isNextDue() const { return m_isNextDue; }
    // The user has gone elsewhere: what waits for its answer is not played.
    void dropNext();
    void playNext(const QModelIndex &current);
    void playLast(const QModelIndex &current);
    void playRow(const QModelIndex &index);
    // A source is on its way, whoever asked for it. The title to open when it is an entry of the queue that
    // names one, else -1.
    int beginSource(const QString &path);
    // The source that playRow() asked for was not taken: the entry before it is the current one again.
    void requestRefused();
    // The row that was asked for last, a source or a title.
    [[nodiscard]] QModelIndex playNode() const { return m_playNode; }
    // The row to mark: the title that plays where that is known.
    [[nodiscard]] QModelIndex markedNode() const;
    [[nodiscard]] Mark mark() const { return m_mark; }
    [[nodiscard]] int pendingTitle() const { return m_pendingTitle; }

    void setStatus(QPlayer::QPlayerStatus status);
    void setMetaInfo(QPlayer::QPlayerMetaType type, const QString &text);
    void removeDisc(const QString &path);
    // Asks the engine for the titles of a source that may be a disc.
    void askTitles(const QString &path) { m_titles.ask(path); }

    void save() { m_store.save(); }

signals:
    void playSource(const QString &path, int title);
    void playBackEnd();
    // Which row is marked, or how.
    void markChanged();
    void countChanged(int count);

private slots:
    void slot_appendSourceRow();

private:
    // Sources that wait for their rows.
    struct Group {
        QStringList paths;
        int next{0};
        QPersistentModelIndex before;
        bool isAtEnd{true};
        // Added by the user just now: its discs are asked for their titles.
        bool asksTitles{false};
    };

    void append(Group group);
    void takeAwaited();
    void dropRows(const QVector<int> &rows);
    void check(const QStringList &paths);
    void checkOn();
    void showPresence();
    [[nodiscard]] bool isAwaited(const QModelIndex &index) const;
    void takeNext();
    void showMeta();
    // By value: the index of the node itself would go with the node.
    void setPlayNode(QModelIndex index);
    [[nodiscard]] QueueOrder::Queue shape() const;
    [[nodiscard]] QueueOrder::Place placeOf(const QModelIndex &index) const;
    [[nodiscard]] QModelIndex indexOf(QueueOrder::Place place) const;
    void play(QueueOrder::Place place);

    PlayQueueModel m_model;
    QueueStore m_store;
    QueueOrder m_order;
    DiscTitleReader m_titles;
    FilePresence m_presence;
    std::deque<Group> m_groups;
    bool m_isAppendPosted{false};

    QHash<QString, bool> m_known;
    QStringList m_toCheck;
    QTimer m_checkTimer;
    int m_answersDue{0};
    bool m_isShowPosted{false};
    bool m_isCheckPosted{false};
    bool m_dropsInvalid{false};

    // What follows m_ended, while it waits for its answer.
    QPersistentModelIndex m_next;
    QPersistentModelIndex m_ended;
    QTimer m_patience;
    bool m_isNextDue{false};

    QPersistentModelIndex m_playNode;
    QPersistentModelIndex m_nodeBefore;
    // What plays, whether it is an entry or not, and the same while its row is still to come.
    QString m_begun;
    QString m_awaited;
    Mark m_mark{Mark::None};
    int m_metaTitle{NoTitle};
    int m_pendingTitle{NoTitle};
};
