// The queue as rows of two levels: sources, and below a disc its titles.
//
// A source costs its path and a few numbers; what is read on the screen is made of the path when a row is
// drawn. Titles come later, as a disc is slow to tell them; until then a source that may be a disc can be
// expanded, and asking is left to whoever listens to titlesWanted(). Every change of order goes through one
// permutation, so that selection, expansion and the row that plays stay with their sources. GUI thread.
#pragma once

#include "player/QPlayerTypes.h"

#include <QAbstractItemModel>
#include <QHash>
#include <QStringList>
#include <QVector>

#include <vector>

class PlayQueueModel final : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Role {
        PathRole = Qt::UserRole + 1,
        TitleNumberRole, // -1 for a source
        SecondsRole,     // length, 0 while unknown
        InvalidRole,     // the source is gone
        IsMainTitleRole,
        MayExpandRole,
        KindRole, // QueuePath::Kind
        FolderRole,
        TypeRole // ending in upper case
    };

    enum class Presence : quint8 { Unknown, There, Gone };
    enum class SortType : int { ByName = 0, ByType = 1 };

    // Rows on their way within one queue.
    static constexpr char MimeType[] = "application/x-quorin-playlist-rows";

    explicit PlayQueueModel(QObject *parent = nullptr);

    // ---- sources. Paths must be usable and not in the queue yet.
    // row: where the first is to stand, -1 for the end.
    void insert(const QStringList &paths, int row = -1);
    void removeSources(QVector<int> rows);
    void clear();
    void sortSources(SortType type);
    // Moves sources, in the order in which they stand, in front of a row.
    void moveSources(QVector<int> rows, int before);

    [[nodiscard]] int sourceCount() const { return int(m_sources.size()); }
    [[nodiscard]] QString path(int row) const { return m_sources[std::size_t(row)].path; }
    [[nodiscard]] QStringList paths() const;
    // The row of a path, -1 without one. A search over all rows.
    [[nodiscard]] int rowOf(const QString &path) const;
    [[nodiscard]] Presence presence(int row) const { return m_sources[std::size_t(row)].presence; }
    // What is known of several sources by now, by QueuePath::key().
    void setPresence(const QHash<QString, bool> &known);
    [[nodiscard]] QVector<int> goneRows() const;

    // ---- titles
    [[nodiscard]] int titleCount(int row) const;
    [[nodiscard]] int titleNumber(int row, int title) const;
    // What a source turned out to be; one that is no disc can't be expanded any more.
    void setTitles(const QString &path, const PlayerDisc &disc);
    // The row of a title by its number, an invalid index without one.
    [[nodiscard]] QModelIndex titleIndex(int row, int number) const;
    [[nodiscard]] bool isTitlesKnown(int row) const { return m_sources[std::size_t(row)].isAsked; }

    // The length of what a row stands for.
    void setSeconds(const QModelIndex &index, int seconds);

    // ---- QAbstractItemModel
    [[nodiscard]] QModelIndex index(int row, int column = 0,
                                    const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

    // The rows that were taken from this very queue; empty for everything else.
    [[nodiscard]] QVector<int> rowsOf(const QMimeData *data) const;

signals:
    void titlesWanted(const QString &path);

private:
    struct Title {
        int number{0};
        int seconds{0};
        bool isMain{false};
    };
    struct Source {
        QString path;
        int seconds{0};
        // Of those that may have titles; 0 for all others.
        quint32 discId{0};
        Presence presence{Presence::Unknown};
        bool isAsked{false};
    };

    [[nodiscard]] static bool isTitle(const QModelIndex &index) { return index.internalId() != 0; }
    [[nodiscard]] const QVector<Title> &titlesOf(const Source &source) const;
    [[nodiscard]] int rowOfDisc(quint32 discId) const;
    [[nodiscard]] QVariant titleData(const QModelIndex &index, int role) const;
    [[nodiscard]] QVariant sourceData(int row, int role) const;
    // order: for each new row the old one.
    void permute(const std::vector<int> &order);

    std::vector<Source> m_sources;
    QHash<quint32, QVector<Title>> m_titles;
    mutable QHash<quint32, int> m_discRows;
    mutable bool m_areDiscRowsKnown{true};
    quint32 m_lastDiscId{0};
    QByteArray m_token;
};
