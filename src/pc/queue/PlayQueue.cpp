#include "PlayQueue.h"

#include "QueuePath.h"

#include "playcontrol/PlayTimeText.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QTimer>

namespace {

// One turn of the event loop goes on with rows for so long, looking at the clock after so many.
constexpr int kTurnMs = 8;
constexpr int kRowsAtOnce = 2000;
// Of what the user adds at once, so many discs are asked; the others when they are expanded or played.
constexpr int kDiscsAsked = 16;
// Around the row that plays, so many are looked at anew.
constexpr int kNeighbours = 16;
// So many are looked at together, and waited for so long.
constexpr int kChecksAtOnce = 512;
constexpr int kPatienceMs = 2000;

FilePresence::Exists existsOr(FilePresence::Exists exists)
{
    return exists ? std::move(exists) : FilePresence::Exists(&QueuePath::exists);
}

QueueOrder orderOr(QueueOrder::Random random)
{
    return random ? QueueOrder(std::move(random)) : QueueOrder();
}

} // namespace

PlayQueue::PlayQueue(SettingsManager &settings, Services services, QObject *parent)
    : QObject(parent)
    , m_store(settings)
    , m_order(orderOr(std::move(services.random)))
    , m_titles(std::move(services.titles))
    , m_presence(existsOr(std::move(services.exists)))
{
    connect(&m_model, &PlayQueueModel::titlesWanted, &m_titles, &DiscTitleReader::ask);
    connect(&m_titles, &DiscTitleReader::told, this, [this](const QString &path, const PlayerDisc &disc) {
        // The titles of a row that plays one of them are numbered as before.
        const int playing = m_playNode.isValid() && m_playNode.parent().isValid()
                                    && m_playNode.data(PlayQueueModel::PathRole).toString() == path
                                ? m_playNode.data(PlayQueueModel::TitleNumberRole).toInt()
                                : NoTitle;
        m_model.setTitles(path, disc);
        const int row = playing == NoTitle ? -1 : m_model.rowOf(path);
        if (row >= 0)
            m_playNode = m_model.titleIndex(row, playing);
        showMeta();
    });
    m_checkTimer.setSingleShot(true);
    m_checkTimer.setInterval(kPatienceMs);
    connect(&m_checkTimer, &QTimer::timeout, this, &PlayQueue::checkOn);
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatienceMs);
    connect(&m_patience, &QTimer::timeout, this, &PlayQueue::takeNext);
    connect(&m_presence, &FilePresence::checked, this, [this](const QString &path, bool isPresent) {
        m_known.insert(QueuePath::key(path), isPresent);
        --m_answersDue;
        if (m_isShowPosted)
            return;
        m_isShowPosted = true;
        QTimer::singleShot(0, this, &PlayQueue::showPresence);
    });
}

PlayQueue::~PlayQueue() = default;

// ---- sources

void PlayQueue::load()
{
    Group group;
    group.paths = m_store.load();
    if (!m_begun.isEmpty() && m_store.contains(m_begun))
        m_awaited = m_begun;
    append(std::move(group));
}

void PlayQueue::add(const QStringList &paths, int before)
{
    Group group;
    group.paths = m_store.take(paths);
    group.asksTitles = true;
    if (before >= 0 && before < m_model.sourceCount()) {
        group.before = m_model.index(before);
        group.isAtEnd = false;
    }
    append(std::move(group));
}

void PlayQueue::append(Group group)
{
    if (group.paths.isEmpty())
        return;
    m_groups.push_back(std::move(group));
    emit countChanged(count());
    if (m_isAppendPosted)
        return;
    m_isAppendPosted = true;
    QTimer::singleShot(0, this, &PlayQueue::slot_appendSourceRow);
}

void PlayQueue::slot_appendSourceRow()
{
    m_isAppendPosted = false;
    QElapsedTimer turn;
    turn.start();
    while (!m_groups.empty() && turn.elapsed() < kTurnMs) {
        Group &group = m_groups.front();
        const QStringList batch = group.paths.mid(group.next, kRowsAtOnce);
        group.next += batch.size();
        m_model.insert(batch, group.isAtEnd || !group.before.isValid() ? -1 : group.before.row());
        takeAwaited();
        if (group.next < group.paths.size())
            continue;
        const QStringList paths = group.paths;
        const bool asksTitles = group.asksTitles;
        m_groups.pop_front();
        int asked = 0;
        for (const QString &path : paths) {
            if (!asksTitles || asked >= kDiscsAsked)
                break;
            if (QueuePath::mayBeDisc(path)) {
                m_titles.ask(path);
                ++asked;
            }
        }
    }
    if (!m_groups.empty()) {
        m_isAppendPosted = true;
        QTimer::singleShot(0, this, &PlayQueue::slot_appendSourceRow);
        return;
    }
    m_isCheckPosted = true;
    QTimer::singleShot(0, this, &PlayQueue::checkPresence);
}

void PlayQueue::remove(const QModelIndexList &indexes)
{
    QVector<int> rows;
    for (const QModelIndex &index : indexes)
        rows << (index.parent().isValid() ? index.parent().row() : index.row());
    dropRows(rows);
}

void PlayQueue::dropRows(const QVector<int> &rows)
{
    QStringList paths;
    for (const int row : rows) {
        if (row >= 0 && row < m_model.sourceCount())
            paths << m_model.path(row);
    }
    if (paths.isEmpty())
        return;
    m_store.remove(paths);
    m_model.removeSources(rows);
    emit countChanged(count());
    emit markChanged();
    takeNext();
}

void PlayQueue::removeAll()
{
    m_groups.clear();
    m_store.clear();
    m_model.clear();
    check({});
    m_presence.check({});
    emit countChanged(0);
    emit markChanged();
}

void PlayQueue::removeInvalid()
{
    m_dropsInvalid = true;
    check(m_model.paths());
}

void PlayQueue::checkPresence()
{
    m_isCheckPosted = false;
    // One that drops what is gone looks at everything already.
    if (!m_dropsInvalid)
        check(m_model.paths());
}

void PlayQueue::check(const QStringList &paths)
{
    m_isCheckPosted = false;
    m_known.clear();
    m_toCheck = paths;
    checkOn();
}

// The next ones, when the last have been answered or their drives take too long.
void PlayQueue::checkOn()
{
    m_checkTimer.stop();
    const QStringList batch = m_toCheck.mid(0, kChecksAtOnce);
    m_toCheck = m_toCheck.mid(batch.size());
    m_answersDue = batch.size();
    if (batch.isEmpty()) {
        m_dropsInvalid = false;
        takeNext();
        return;
    }
    m_presence.check(batch);
    m_checkTimer.start();
}

void PlayQueue::showPresence()
{
    m_isShowPosted = false;
    QHash<QString, bool> known;
    known.swap(m_known);
    m_model.setPresence(known);
    if (m_dropsInvalid) {
        QVector<int> rows;
        const QVector<int> gone = m_model.goneRows();
        for (const int row : gone) {
            // What was said before this question does not count.
            if (!known.value(QueuePath::key(m_model.path(row)), true))
                rows << row;
        }
        dropRows(rows);
    }
    takeNext();
    if (m_answersDue <= 0 && m_checkTimer.isActive())
        checkOn();
}

void PlayQueue::sortBy(int sortType)
{
    m_store.setSortType(sortType);
    m_model.sortSources(static_cast<PlayQueueModel::SortType>(sortType));
}

void PlayQueue::moveRows(const QVector<int> &rows, int before)
{
    m_model.moveSources(rows, before);
}

// ---- what plays

QueueOrder::Queue PlayQueue::shape() const
{
    return {m_model.sourceCount(), [this](int row) { return m_model.titleCount(row); },
            [this](int row) { return m_model.presence(row) == PlayQueueModel::Presence::Gone; }};
}

QueueOrder::Place PlayQueue::placeOf(const QModelIndex &index) const
{
    if (!index.isValid())
        return {};
    const QModelIndex source = index.parent();
    return source.isValid() ? QueueOrder::Place{source.row(), index.row()}
                            : QueueOrder::Place{index.row(), -1};
}

QModelIndex PlayQueue::indexOf(QueueOrder::Place place) const
{
    if (!place.isValid())
        return {};
    const QModelIndex source = m_model.index(place.row);
    return place.title < 0 ? source : m_model.index(place.title, 0, source);
}

void PlayQueue::autoPlayNext(const QModelIndex &current)
{
    dropNext();
    if (!current.isValid()) {
        emit playBackEnd();
        return;
    }
    m_pendingTitle = Choosing;
    const QModelIndex next = indexOf(m_order.afterEnd(loopType(), placeOf(current), shape()));
    if (!next.isValid()) {
        m_pendingTitle = NoTitle;
        emit playBackEnd();
        return;
    }
    // The one that has just played is there.
    if (placeOf(next).row == placeOf(current).row || !isAwaited(next)) {
        playRow(next);
        return;
    }
    m_ended = current;
    m_next = next;
    m_isNextDue = true;
    m_patience.start();
}

bool PlayQueue::isAwaited(const QModelIndex &index) const
{
    return (isChecking() || isAppending())
           && m_model.presence(placeOf(index).row) == PlayQueueModel::Presence::Unknown;
}

void PlayQueue::dropNext()
{
    if (!m_isNextDue)
        return;
    m_isNextDue = false;
    m_patience.stop();
    m_pendingTitle = NoTitle;
}

void PlayQueue::takeNext()
{
    const bool isInList = m_next.isValid();
    if (!m_isNextDue || (isInList && m_patience.isActive() && isAwaited(m_next)))
        return;
    dropNext();
    if (isInList && m_model.presence(placeOf(m_next).row) != PlayQueueModel::Presence::Gone)
        playRow(m_next);
    else
        autoPlayNext(m_ended);
}

void PlayQueue::playNext(const QModelIndex &current)
{
    play(m_order.next(loopType(), placeOf(current), shape()));
}

void PlayQueue::playLast(const QModelIndex &current)
{
    play(m_order.last(loopType(), placeOf(current), shape()));
}

void PlayQueue::play(QueueOrder::Place place)
{
    if (place.isValid())
        playRow(indexOf(place));
}

void PlayQueue::playRow(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    dropNext();
    const QString path = index.data(PlayQueueModel::PathRole).toString();
    m_nodeBefore = m_playNode;
    m_pendingTitle = index.data(PlayQueueModel::TitleNumberRole).toInt();
    setPlayNode(index);
    emit playSource(path, m_pendingTitle);
}

void PlayQueue::takeAwaited()
{
    const int row = m_awaited.isEmpty() ? -1 : m_model.rowOf(m_awaited);
    if (row < 0)
        return;
    m_awaited.clear();
    setPlayNode(m_model.index(row));
}

void PlayQueue::setPlayNode(QModelIndex index)
{
    m_playNode = index;
    m_metaTitle = NoTitle;
    emit markChanged();
}

int PlayQueue::beginSource(const QString &path)
{
    dropNext();
    const QString kept = QueuePath::kept(path);
    const int title = m_pendingTitle;
    m_pendingTitle = NoTitle;
    m_nodeBefore = QPersistentModelIndex();
    m_begun = kept;
    m_awaited.clear();
    m_mark = Mark::None;
    const bool isAsked =
        m_playNode.isValid()
        && QueuePath::key(m_playNode.data(PlayQueueModel::PathRole).toString()) == QueuePath::key(kept);
    if (isAsked && title >= 0) {
        setPlayNode(m_playNode);
        return title;
    }
    const int row = m_store.contains(kept) ? m_model.rowOf(kept) : -1;
    m_awaited = row < 0 && m_store.contains(kept) ? kept : QString();
    setPlayNode(row < 0 ? QModelIndex() : m_model.index(row));
    return NoTitle;
}

void PlayQueue::requestRefused()
{
    m_pendingTitle = NoTitle;
    m_playNode = m_nodeBefore;
    m_nodeBefore = QPersistentModelIndex();
    emit markChanged();
}

QModelIndex PlayQueue::markedNode() const
{
    const bool isSource = m_playNode.isValid() && !m_playNode.parent().isValid();
    if (!isSource || m_metaTitle == NoTitle)
        return m_playNode;
    const QModelIndex title = m_model.titleIndex(m_playNode.row(), m_metaTitle);
    return title.isValid() ? title : QModelIndex(m_playNode);
}

void PlayQueue::setStatus(QPlayer::QPlayerStatus status)
{
    Mark mark = Mark::None;
    if (QPlayer::isMoving(status))
        mark = Mark::Playing;
    else if (status == QPlayer::QPlayerStatus_Paused)
        mark = Mark::Paused;
    const bool begins = m_mark == Mark::None && mark != Mark::None;
    if (m_mark != mark) {
        m_mark = mark;
        emit markChanged();
    }
    if (!begins || !m_playNode.isValid())
        return;
    const int row = placeOf(m_playNode).row;
    if (QueuePath::mayBeDisc(m_model.path(row)) && !m_model.isTitlesKnown(row))
        m_titles.ask(m_model.path(row));
    if (m_checkTimer.isActive() || isAppending())
        return;
    // What comes next may have come back, or gone, since the list was looked at.
    QStringList near;
    for (int other = qMax(0, row - kNeighbours); other < qMin(m_model.sourceCount(), row + kNeighbours);
         ++other)
        near << m_model.path(other);
    check(near);
}

void PlayQueue::setMetaInfo(QPlayer::QPlayerMetaType type, const QString &text)
{
    if (!m_playNode.isValid())
        return;
    if (type == QPlayer::QPlayerMetaType_Title) {
        bool isNumber = false;
        const int title = text.toInt(&isNumber);
        m_metaTitle = isNumber ? title : NoTitle;
        showMeta();
    } else if (type == QPlayer::QPlayerMetaType_Time) {
        const auto times = PlayTimeText::parse(text);
        if (times && m_mark != Mark::None)
            m_model.setSeconds(markedNode(), int(times->total));
    }
}

void PlayQueue::showMeta()
{
    // One title was asked for, and the disc has gone on to another by itself.
    const QModelIndex source = m_playNode.parent();
    if (source.isValid() && m_metaTitle != NoTitle) {
        const QModelIndex title = m_model.titleIndex(source.row(), m_metaTitle);
        if (title.isValid())
            m_playNode = title;
    }
    emit markChanged();
}

void PlayQueue::removeDisc(const QString &path)
{
    const QString kept = QueuePath::kept(path);
    for (Group &group : m_groups) {
        const int waiting = group.paths.indexOf(kept, group.next);
        if (waiting >= 0) {
            group.paths.removeAt(waiting);
            m_store.remove({kept});
            emit countChanged(count());
        }
    }
    dropRows({m_model.rowOf(kept)});
}
