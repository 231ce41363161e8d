#include "QueueMenus.h"

#include "PlayQueueModel.h"
#include "QueueOrder.h"

#include <QActionGroup>

struct QueueMenus::Row {
    enum Need { Nothing, Sources, Selection, Folder };

    Action action;
    const char *text; // null: a line
    Need need{Nothing};
    int number{-1}; // of a choice
};

namespace {

using Action = QueueMenus::Action;
using Sort = PlayQueueModel::SortType;

bool isThere(int need, const QueueMenus::State &state)
{
    const bool has[] = {true, state.hasSources, state.hasSelection, state.hasFolder};
    return has[need];
}

} // namespace

QueueMenus::QueueMenus(QObject *parent)
    : QObject(parent)
{
}

QueueMenus::~QueueMenus() = default;

QMenu *QueueMenus::buildContext(const State &state)
{
    static constexpr Row rows[] = {
        {Action::AddFile, QT_TR_NOOP("AddFile...")},
        {Action::AddFolder, QT_TR_NOOP("Add Folder...")},
        {Action::Remove, nullptr},
        {Action::Remove, QT_TR_NOOP("Remove"), Row::Selection},
        {Action::RemoveInvalid, QT_TR_NOOP("Remove Invalid"), Row::Sources},
        {Action::RemoveAll, QT_TR_NOOP("Remove All"), Row::Sources},
        {Action::Remove, nullptr},
        {Action::OpenContainingFolder, QT_TR_NOOP("Open Containing Folder"), Row::Folder},
    };
    return build(std::begin(rows), std::end(rows), state);
}

QMenu *QueueMenus::buildOption(const State &state)
{
    static constexpr Row rows[] = {
        {Action::RemoveAll, QT_TR_NOOP("Remove All"), Row::Sources},
        {Action::Sort, nullptr},
        {Action::Sort, QT_TR_NOOP("Sort by Name"), Row::Nothing, int(Sort::ByName)},
        {Action::Sort, QT_TR_NOOP("Sort by Type"), Row::Nothing, int(Sort::ByType)},
        {Action::Loop, nullptr},
        {Action::Loop, QT_TR_NOOP("Once"), Row::Nothing, QueueOrder::Once},
        {Action::Loop, QT_TR_NOOP("Sequence"), Row::Nothing, QueueOrder::Sequence},
        {Action::Loop, QT_TR_NOOP("Shuffle"), Row::Nothing, QueueOrder::Shuffle},
        {Action::Loop, QT_TR_NOOP("Repeat One"), Row::Nothing, QueueOrder::RepeatOne},
        {Action::Loop, QT_TR_NOOP("Repeat All"), Row::Nothing, QueueOrder::RepeatAll},
    };
    return build(std::begin(rows), std::end(rows), state);
}

QMenu *QueueMenus::buildAdd()
{
    static constexpr Row rows[] = {
        {Action::AddFile, QT_TR_NOOP("AddFile...")},
        {Action::AddFolder, QT_TR_NOOP("Add Folder...")},
    };
    return build(std::begin(rows), std::end(rows), {});
}

QMenu *QueueMenus::build(const Row *first, const Row *end, const State &state)
{
    m_menu = std::make_unique<QMenu>();
    auto *sorts = new QActionGroup(m_menu.get());
    auto *loops = new QActionGroup(m_menu.get());
    for (const Row *row = first; row != end; ++row) {
        if (row->text == nullptr) {
            m_menu->addSeparator();
            continue;
        }
        QAction *entry = m_menu->addAction(tr(row->text));
        entry->setEnabled(isThere(row->need, state));
        if (row->number >= 0) {
            const bool isSort = row->action == Action::Sort;
            (isSort ? sorts : loops)->addAction(entry);
            entry->setCheckable(true);
            entry->setChecked(row->number == (isSort ? state.sortType : state.loopType));
        }
        connect(entry, &QAction::triggered, this,
                [this, action = row->action, number = row->number] { emit chosen(action, number); });
    }
    return m_menu.get();
}
