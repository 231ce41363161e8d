#include "PlayQueueModel.h"

#include "QueuePath.h"

#include "playcontrol/NaturalOrder.h"

#include <QDataStream>
#include <QDir>
#include <QMimeData>
#include <QUuid>

#include <algorithm>
#include <numeric>

namespace {

constexpr int kMsPerSecond = 1000;

} // namespace

PlayQueueModel::PlayQueueModel(QObject *parent)
    : QAbstractItemModel(parent)
    , m_token(QUuid::createUuid().toByteArray())
{
}

// ---- sources

void PlayQueueModel::insert(const QStringList &paths, int row)
{
    if (paths.isEmpty())
        return;
    const int at = row < 0 || row > sourceCount() ? sourceCount() : row;
    beginInsertRows({}, at, at + paths.size() - 1);
    std::vector<Source> added;
    added.reserve(std::size_t(paths.size()));
    for (const QString &path : paths) {
        Source source;
        source.path = path;
        if (QueuePath::mayBeDisc(path))
            source.discId = ++m_lastDiscId;
        added.push_back(std::move(source));
    }
    m_sources.insert(m_sources.begin() + at, std::make_move_iterator(added.begin()),
                     std::make_move_iterator(added.end()));
    m_areDiscRowsKnown = false;
    endInsertRows();
}

void PlayQueueModel::removeSources(QVector<int> rows)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (rows.isEmpty() || rows.first() < 0 || rows.last() >= sourceCount())
        return;
    int first = rows.first();
    const int count = rows.size();
    // Scattered ones go to the end and then all at once: views work on each removal anew.
    if (rows.last() - first + 1 != count) {
        std::vector<bool> isRemoved(m_sources.size());
        for (const int row : qAsConst(rows))
            isRemoved[std::size_t(row)] = true;
        std::vector<int> order(m_sources.size());
        std::iota(order.begin(), order.end(), 0);
        std::stable_partition(order.begin(), order.end(),
                              [&](int row) { return !isRemoved[std::size_t(row)]; });
        permute(order);
        first = sourceCount() - count;
    }
    beginRemoveRows({}, first, first + count - 1);
    for (int row = first; row < first + count; ++row)
        m_titles.remove(m_sources[std::size_t(row)].discId);
    m_sources.erase(m_sources.begin() + first, m_sources.begin() + first + count);
    m_areDiscRowsKnown = false;
    endRemoveRows();
}

void PlayQueueModel::clear()
{
    if (m_sources.empty())
        return;
    beginRemoveRows({}, 0, sourceCount() - 1);
    m_sources.clear();
    m_titles.clear();
    m_areDiscRowsKnown = false;
    endRemoveRows();
}

void PlayQueueModel::sortSources(SortType type)
{
    struct Keyed {
        QString type;
        QCollatorSortKey name;
        int row;
    };
    const QCollator collator = NaturalOrder::collator();
    std::vector<Keyed> keyed;
    keyed.reserve(m_sources.size());
    for (int row = 0; row < sourceCount(); ++row)
        keyed.push_back({type == SortType::ByType ? QueuePath::typeText(path(row)) : QString(),
                         collator.sortKey(QueuePath::displayName(path(row))), row});
    std::stable_sort(keyed.begin(), keyed.end(), [](const Keyed &one, const Keyed &other) {
        const int byType = one.type.compare(other.type);
        return byType != 0 ? byType < 0 : one.name.compare(other.name) < 0;
    });
    std::vector<int> order;
    order.reserve(keyed.size());
    for (const Keyed &entry : keyed)
        order.push_back(entry.row);
    permute(order);
}

void PlayQueueModel::moveSources(QVector<int> rows, int before)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (rows.isEmpty() || rows.first() < 0 || rows.last() >= sourceCount())
        return;
    const int target = before < 0 ? sourceCount() : qMin(before, sourceCount());
    std::vector<bool> isMoved(m_sources.size());
    for (const int row : qAsConst(rows))
        isMoved[std::size_t(row)] = true;
    std::vector<int> order;
    order.reserve(m_sources.size());
    const auto takeStaying = [&](int from, int to) {
        for (int row = from; row < to; ++row) {
            if (!isMoved[std::size_t(row)])
                order.push_back(row);
        }
    };
    takeStaying(0, target);
    order.insert(order.end(), rows.cbegin(), rows.cend());
    takeStaying(target, sourceCount());
    permute(order);
}

void PlayQueueModel::permute(const std::vector<int> &order)
{
    if (std::is_sorted(order.begin(), order.end()))
        return;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    std::vector<int> newRows(order.size());
    std::vector<Source> sources;
    sources.reserve(order.size());
    for (std::size_t row = 0; row < order.size(); ++row) {
        newRows[std::size_t(order[row])] = int(row);
        sources.push_back(std::move(m_sources[std::size_t(order[row])]));
    }
    m_sources = std::move(sources);
    m_areDiscRowsKnown = false;
    const QModelIndexList from = persistentIndexList();
    QModelIndexList to;
    to.reserve(from.size());
    for (const QModelIndex &index : from)
        to << (isTitle(index) ? index : createIndex(newRows[std::size_t(index.row())], 0, quintptr(0)));
    changePersistentIndexList(from, to);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

QStringList PlayQueueModel::paths() const
{
    QStringList result;
    result.reserve(sourceCount());
    for (const Source &source : m_sources)
        result << source.path;
    return result;
}

int PlayQueueModel::rowOf(const QString &path) const
{
    const QString key = QueuePath::key(path);
    const auto hit = std::find_if(m_sources.cbegin(), m_sources.cend(), [&](const Source &source) {
        return source.path.size() == key.size() && QueuePath::key(source.path) == key;
    });
    return hit != m_sources.cend() ? int(hit - m_sources.cbegin()) : -1;
}

void PlayQueueModel::setPresence(const QHash<QString, bool> &known)
{
    int first = sourceCount();
    int last = -1;
    for (int row = 0; row < sourceCount(); ++row) {
        Source &source = m_sources[std::size_t(row)];
        const auto hit = known.constFind(QueuePath::key(source.path));
        if (hit == known.constEnd())
            continue;
        const Presence presence = *hit ? Presence::There : Presence::Gone;
        if (source.presence == presence)
            continue;
        source.presence = presence;
        first = qMin(first, row);
        last = row;
    }
    if (last >= 0)
        emit dataChanged(index(first), index(last), {InvalidRole, Qt::AccessibleTextRole});
}

QVector<int> PlayQueueModel::goneRows() const
{
    QVector<int> rows;
    for (int row = 0; row < sourceCount(); ++row) {
        if (presence(row) == Presence::Gone)
            rows << row;
    }
    return rows;
}

// ---- titles

const QVector<PlayQueueModel::Title> &PlayQueueModel::titlesOf(const Source &source) const
{
    static const QVector<Title> none;
    const auto hit = m_titles.constFind(source.discId);
    return hit != m_titles.constEnd() ? *hit : none;
}

int PlayQueueModel::titleCount(int row) const
{
    return titlesOf(m_sources[std::size_t(row)]).size();
}

int PlayQueueModel::titleNumber(int row, int title) const
{
    const QVector<Title> &titles = titlesOf(m_sources[std::size_t(row)]);
    return title >= 0 && title < titles.size() ? titles.at(title).number : -1;
}

void PlayQueueModel::setTitles(const QString &path, const PlayerDisc &disc)
{
    const int row = rowOf(path);
    if (row < 0 || m_sources[std::size_t(row)].discId == 0)
        return;
    Source &source = m_sources[std::size_t(row)];
    source.isAsked = true;
    if (const int old = titleCount(row)) {
        beginRemoveRows(index(row), 0, old - 1);
        m_titles.remove(source.discId);
        endRemoveRows();
    }
    QVector<Title> titles;
    if (disc.isValid) {
        titles.reserve(disc.titles.size());
        for (const PlayerDiscTitle &title : disc.titles)
            titles.append(
                {title.number, qMax(0, title.durationMs) / kMsPerSecond, title.number == disc.mainTitle});
    }
    if (!titles.isEmpty()) {
        beginInsertRows(index(row), 0, titles.size() - 1);
        m_titles.insert(source.discId, titles);
        m_areDiscRowsKnown = false;
        endInsertRows();
    }
    emit dataChanged(index(row), index(row));
}

QModelIndex PlayQueueModel::titleIndex(int row, int number) const
{
    const QVector<Title> &titles = titlesOf(m_sources[std::size_t(row)]);
    const auto hit = std::find_if(titles.cbegin(), titles.cend(),
                                  [number](const Title &title) { return title.number == number; });
    return hit != titles.cend() ? index(int(hit - titles.cbegin()), 0, index(row)) : QModelIndex();
}

void PlayQueueModel::setSeconds(const QModelIndex &index, int seconds)
{
    if (!index.isValid() || seconds <= 0 || index.data(SecondsRole).toInt() == seconds)
        return;
    if (isTitle(index))
        m_titles[quint32(index.internalId())][index.row()].seconds = seconds;
    else
        m_sources[std::size_t(index.row())].seconds = seconds;
    emit dataChanged(index, index, {SecondsRole});
}

int PlayQueueModel::rowOfDisc(quint32 discId) const
{
    if (!m_areDiscRowsKnown) {
        m_discRows.clear();
        for (int row = 0; row < sourceCount(); ++row) {
            const quint32 id = m_sources[std::size_t(row)].discId;
            if (id != 0 && m_titles.contains(id))
                m_discRows.insert(id, row);
        }
        m_areDiscRowsKnown = true;
    }
    return m_discRows.value(discId, -1);
}

// ---- QAbstractItemModel

QModelIndex PlayQueueModel::index(int row, int column, const QModelIndex &parent) const
{
    if (column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    const quintptr id = parent.isValid() ? m_sources[std::size_t(parent.row())].discId : 0;
    return createIndex(row, 0, id);
}

QModelIndex PlayQueueModel::parent(const QModelIndex &child) const
{
    if (!child.isValid() || !isTitle(child))
        return {};
    const int row = rowOfDisc(quint32(child.internalId()));
    return row < 0 ? QModelIndex() : createIndex(row, 0, quintptr(0));
}

int PlayQueueModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return sourceCount();
    if (isTitle(parent) || parent.row() >= sourceCount())
        return 0;
    return titleCount(parent.row());
}

int PlayQueueModel::columnCount(const QModelIndex &) const
{
    return 1;
}

bool PlayQueueModel::hasChildren(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return !m_sources.empty();
    return !isTitle(parent) && (titleCount(parent.row()) > 0 || canFetchMore(parent));
}

bool PlayQueueModel::canFetchMore(const QModelIndex &parent) const
{
    if (!parent.isValid() || isTitle(parent))
        return false;
    const Source &source = m_sources[std::size_t(parent.row())];
    return source.discId != 0 && !source.isAsked;
}

void PlayQueueModel::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent))
        emit titlesWanted(path(parent.row()));
}

QVariant PlayQueueModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    return isTitle(index) ? titleData(index, role) : sourceData(index.row(), role);
}

QVariant PlayQueueModel::titleData(const QModelIndex &index, int role) const
{
    const int row = rowOfDisc(quint32(index.internalId()));
    if (row < 0)
        return {};
    const Source &source = m_sources[std::size_t(row)];
    const Title &title = titlesOf(source).at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole: {
        const QString name = tr("Title") + QLatin1Char(' ') + QString::number(title.number);
        return title.isMain ? name + tr(" (Main)") : name;
    }
    case PathRole:
        return source.path;
    case TitleNumberRole:
        return title.number;
    case SecondsRole:
        return title.seconds;
    case InvalidRole:
        return source.presence == Presence::Gone;
    case IsMainTitleRole:
        return title.isMain;
    case MayExpandRole:
        return false;
    case KindRole:
        return int(QueuePath::kindOf(source.path));
    default:
        return {};
    }
}

QVariant PlayQueueModel::sourceData(int row, int role) const
{
    const Source &source = m_sources[std::size_t(row)];
    switch (role) {
    case Qt::DisplayRole:
        return QueuePath::displayName(source.path);
    case Qt::AccessibleTextRole:
        return source.presence == Presence::Gone
                   ? QueuePath::displayName(source.path) + QLatin1String(", ") + tr("Not found")
                   : QueuePath::displayName(source.path);
    case Qt::ToolTipRole: {
        const QString path = QueuePath::kindOf(source.path) == QueuePath::Disc
                                 ? QueuePath::displayName(source.path)
                                 : QDir::toNativeSeparators(source.path);
        // Escaped: the name of a file must not be read as markup.
        return (source.presence == Presence::Gone ? path + QLatin1Char('\n') + tr("Not found") : path)
            .toHtmlEscaped()
            .replace(QLatin1Char('\n'), QLatin1String("<br>"));
    }
    case PathRole:
        return source.path;
    case TitleNumberRole:
        return -1;
    case SecondsRole:
        return source.seconds;
    case InvalidRole:
        return source.presence == Presence::Gone;
    case IsMainTitleRole:
        return false;
    case MayExpandRole:
        return source.discId != 0 && (!source.isAsked || titleCount(row) > 0);
    case KindRole:
        return int(titleCount(row) > 0 ? QueuePath::Disc : QueuePath::kindOf(source.path));
    case FolderRole:
        return QueuePath::folderText(source.path);
    case TypeRole:
        return QueuePath::typeText(source.path);
    default:
        return {};
    }
}

Qt::ItemFlags PlayQueueModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (isTitle(index))
        return flags | Qt::ItemNeverHasChildren;
    return flags | Qt::ItemIsDragEnabled;
}

QStringList PlayQueueModel::mimeTypes() const
{
    return {QLatin1String(MimeType)};
}

QMimeData *PlayQueueModel::mimeData(const QModelIndexList &indexes) const
{
    QVector<qint32> rows;
    for (const QModelIndex &index : indexes) {
        if (!isTitle(index))
            rows << index.row();
    }
    if (rows.isEmpty())
        return nullptr;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << m_token << rows;
    // Nothing but rows: files among it could be moved away by whoever takes the drop.
    auto *data = new QMimeData;
    data->setData(QLatin1String(MimeType), bytes);
    return data;
}

QVector<int> PlayQueueModel::rowsOf(const QMimeData *data) const
{
    if (data == nullptr || !data->hasFormat(QLatin1String(MimeType)))
        return {};
    QDataStream in(data->data(QLatin1String(MimeType)));
    QByteArray token;
    in >> token;
    if (token != m_token)
        return {};
    QVector<qint32> rows;
    in >> rows;
    const bool isWhole = in.status() == QDataStream::Ok
                         && std::all_of(rows.cbegin(), rows.cend(),
                                        [this](int row) { return row >= 0 && row < sourceCount(); });
    return isWhole ? rows : QVector<int>();
}
