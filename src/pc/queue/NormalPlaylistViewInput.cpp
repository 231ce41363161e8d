// What mouse, keyboard, drops and menus do in the queue's panel.
#include "NormalPlaylistView.h"

#include "NormalPlaylistIconDelegate.h"
#include "QueueHead.h"
#include "QueueListView.h"
#include "QueuePath.h"

#include "core/CommonInfoManager.h"
#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "platform/FolderOpener.h"
#include "playcontrol/DropReader.h"
#include "transport/TransportButton.h"
#include "ui/FocusRing.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDebug>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QListView>
#include <QMimeData>

namespace {

// Drops that hang each hold a thread.
constexpr int kMostDrops = 8;

enum class KeyUse { Foreign, Panel, View };

// What a key means while the keyboard is in the rows.
KeyUse useOf(const QKeyEvent &event, bool searches)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Delete:
    case Qt::Key_Left:
    case Qt::Key_Right:
        return modifiers == Qt::NoModifier ? KeyUse::Panel : KeyUse::Foreign;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        return modifiers & (Qt::AltModifier | Qt::MetaModifier) ? KeyUse::Foreign : KeyUse::View;
    // Pauses, unless it is part of a name that is being typed.
    case Qt::Key_Space:
        return searches ? KeyUse::View : KeyUse::Foreign;
    default:
        break;
    }
    if (event.matches(QKeySequence::SelectAll))
        return KeyUse::View;
    const bool isText = !event.text().isEmpty() && event.text().at(0).isPrint()
                        && !(modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    return isText ? KeyUse::View : KeyUse::Foreign;
}

} // namespace

void NormalPlaylistView::setDefaultServices()
{
    if (!m_services.chooseFiles)
        m_services.chooseFiles = [](QWidget *parent, const QString &folder) {
            const QString filters =
                tr("Media Files (%1)").arg(CommonInfoManager::playableNameFilters().join(QLatin1Char(' ')))
                + QStringLiteral(";;") + tr("All Files (*)");
            return QFileDialog::getOpenFileNames(parent, tr("AddFile..."), folder, filters);
        };
    if (!m_services.chooseFolder)
        m_services.chooseFolder = [](QWidget *parent, const QString &folder) {
            return QFileDialog::getExistingDirectory(parent, tr("Add Folder..."), folder);
        };
    if (!m_services.showInFolder) {
        m_folders = std::make_unique<FolderOpener>();
        m_services.showInFolder = [this](const QString &path) { m_folders->show(path); };
    }
}

// ---- keyboard

void NormalPlaylistView::setKeyboardUsed(bool used)
{
    m_isKeyboardUsed = used && m_isOpen;
    if (!m_isKeyboardUsed)
        showFocus(false);
}

void NormalPlaylistView::showFocus(bool shown)
{
    if (window()->property(FocusRing::Property).toBool() == shown)
        return;
    window()->setProperty(FocusRing::Property, shown);
    if (QWidget *current = window()->focusWidget())
        current->update();
    viewInUse()->viewport()->update();
}

QWidget *NormalPlaylistView::keyboardPart() const
{
    QWidget *current = window()->focusWidget();
    return current != nullptr && isAncestorOf(current) ? current : viewInUse();
}

bool NormalPlaylistView::takesKey(const QKeyEvent &event) const
{
    if (!m_isOpen || !m_isKeyboardUsed)
        return false;
    switch (event.key()) {
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    default:
        break;
    }
    if (qobject_cast<TransportButton *>(keyboardPart()) != nullptr)
        return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
    return useOf(event, isSearching()) != KeyUse::Foreign;
}

bool NormalPlaylistView::handleKey(QKeyEvent *event)
{
    if (!takesKey(*event))
        return false;
    switch (event->key()) {
    case Qt::Key_Escape:
        setKeyboardUsed(false);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        // The first press shows where the cursor is.
        if (window()->property(FocusRing::Property).toBool())
            focusNextPrevChild(event->key() == Qt::Key_Tab && !(event->modifiers() & Qt::ShiftModifier));
        showFocus(true);
        return true;
    default:
        break;
    }
    if (auto *button = qobject_cast<TransportButton *>(keyboardPart())) {
        button->click();
        return true;
    }
    viewInUse()->setFocus(Qt::OtherFocusReason);
    QCoreApplication::sendEvent(viewInUse(), event);
    return true;
}

int NormalPlaylistView::searchMs()
{
    return QApplication::keyboardInputInterval();
}

bool NormalPlaylistView::isSearching() const
{
    return m_searchClock.isValid() && !m_searchClock.hasExpired(searchMs());
}

bool NormalPlaylistView::dealRowKey(QKeyEvent *event)
{
    const KeyUse use = useOf(*event, isSearching());
    if (use == KeyUse::Foreign) {
        event->ignore();
        return true;
    }
    showFocus(true);
    if (use == KeyUse::View) {
        if (!event->text().isEmpty() && event->text().at(0).isPrint())
            m_searchClock.start();
        return false;
    }
    event->accept();
    const QModelIndex current = viewInUse()->currentIndex();
    switch (event->key()) {
    case Qt::Key_Delete:
        removeSelection();
        break;
    case Qt::Key_Left:
        if (current.parent().isValid())
            m_list->setCurrentIndex(current.parent());
        else if (!isGrid())
            m_list->collapse(current);
        else
            return false;
        break;
    case Qt::Key_Right:
        if (isGrid())
            return false;
        m_list->expand(current);
        break;
    default:
        if (!event->isAutoRepeat())
            m_queue->playRow(current);
    }
    return true;
}

bool NormalPlaylistView::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        setKeyboardUsed(true);
        showFocus(false);
        break;
    case QEvent::KeyPress:
        if (watched == viewInUse())
            return dealRowKey(static_cast<QKeyEvent *>(event));
        break;
    case QEvent::Resize:
        if (watched == m_grid->viewport())
            placeTiles();
        break;
    case QEvent::MouseMove:
        if (watched == m_grid->viewport())
            showHover(m_grid->indexAt(static_cast<QMouseEvent *>(event)->pos()));
        break;
    case QEvent::Leave:
        if (watched == m_grid->viewport())
            showHover({});
        break;
    default:
        break;
    }
    return OverlayWidget::eventFilter(watched, event);
}

void NormalPlaylistView::showHover(const QModelIndex &index)
{
    const QModelIndex before = m_iconDelegate->hovered();
    if (before == index)
        return;
    m_iconDelegate->setHovered(index);
    for (const QModelIndex &changed : {before, index}) {
        if (changed.isValid())
            m_grid->viewport()->update(m_grid->visualRect(changed));
    }
}

// ---- menus

void NormalPlaylistView::contextMenuEvent(QContextMenuEvent *event)
{
    if (!takesMouseAt(event->pos())) {
        event->ignore();
        return;
    }
    m_menus.buildContext(menuState())->popup(event->globalPos());
    event->accept();
}

void NormalPlaylistView::popUpUnder(QMenu *menu, const QWidget *button)
{
    const QPoint corner = button->mapToGlobal(QPoint(button->width(), button->height()));
    menu->popup(corner - QPoint(menu->sizeHint().width(), 0));
}

QModelIndexList NormalPlaylistView::selection() const
{
    return m_list->selectionModel()->selectedIndexes();
}

QueueMenus::State NormalPlaylistView::menuState() const
{
    QueueMenus::State state;
    state.hasSources = m_queue->count() > 0;
    state.hasSelection = m_list->selectionModel()->hasSelection();
    state.hasFolder = m_selectNode.isValid()
                      && !QueuePath::local(m_selectNode.data(PlayQueueModel::PathRole).toString()).isEmpty();
    state.sortType = m_queue->sortType();
    state.loopType = m_queue->loopType();
    return state;
}

void NormalPlaylistView::deal(QueueMenus::Action action, int number)
{
    switch (action) {
    case QueueMenus::Action::AddFile:
        addFiles();
        break;
    case QueueMenus::Action::AddFolder:
        addFolder();
        break;
    case QueueMenus::Action::Remove:
        removeSelection();
        break;
    case QueueMenus::Action::RemoveInvalid:
        m_queue->removeInvalid();
        break;
    case QueueMenus::Action::RemoveAll:
        m_queue->removeAll();
        break;
    case QueueMenus::Action::OpenContainingFolder:
        openContainingFolder();
        break;
    case QueueMenus::Action::Sort:
        m_queue->sortBy(number);
        break;
    case QueueMenus::Action::Loop:
        m_queue->setLoopType(number);
        break;
    }
}

void NormalPlaylistView::addFiles()
{
    const QString key = QLatin1String(SettingsKeys::PC_AddLastFolder);
    const QStringList files = m_services.chooseFiles(parentWidget(), m_settings.value(key).toString());
    if (files.isEmpty())
        return;
    m_settings.setValue(key, QFileInfo(files.first()).path());
    m_queue->add(files);
}

void NormalPlaylistView::addFolder()
{
    const QString key = QLatin1String(SettingsKeys::PC_AddLastFolder);
    const QString folder = m_services.chooseFolder(parentWidget(), m_settings.value(key).toString());
    if (folder.isEmpty())
        return;
    m_settings.setValue(key, folder);
    takeUrls({QUrl::fromLocalFile(folder)}, -1);
}

void NormalPlaylistView::removeSelection()
{
    const QModelIndexList chosen = selection();
    if (chosen.isEmpty())
        return;
    int first = m_queue->model()->sourceCount();
    for (const QModelIndex &index : chosen)
        first = qMin(first, index.parent().isValid() ? index.parent().row() : index.row());
    m_queue->remove(chosen);
    // The row that took its place, so that the key can be pressed again.
    const int count = m_queue->model()->sourceCount();
    if (count > 0)
        viewInUse()->setCurrentIndex(m_queue->model()->index(qMin(first, count - 1)));
}

void NormalPlaylistView::openContainingFolder()
{
    const QString path = QueuePath::local(m_selectNode.data(PlayQueueModel::PathRole).toString());
    if (!path.isEmpty())
        m_services.showInFolder(path);
}

// ---- drops

void NormalPlaylistView::takeUrls(const QList<QUrl> &urls, int before)
{
    if (m_dropReaders >= kMostDrops) {
        qInfo() << "[Playlist] too many drops are being read, one was left out:" << urls.size();
        return;
    }
    // One each: a later drop does not take the place of an earlier one here.
    ++m_dropReaders;
    auto *reader = new DropReader(m_services.drops, this);
    const QPersistentModelIndex place = before >= 0 && before < m_queue->model()->sourceCount()
                                            ? m_queue->model()->index(before)
                                            : QModelIndex();
    connect(reader, &DropReader::decided, this, [this, reader, place](const DropRule::Outcome &outcome) {
        --m_dropReaders;
        reader->deleteLater();
        QStringList sources = outcome.queue;
        if (!outcome.first.isEmpty())
            sources.prepend(outcome.first);
        m_queue->add(sources, place.isValid() ? place.row() : -1);
        if (!outcome.messages.isEmpty())
            emit sig_notice(outcome.messages.join(QLatin1Char('\n')));
    });
    reader->read(urls, false);
}

void NormalPlaylistView::setDropping(bool dropping)
{
    if (m_isDropping == dropping)
        return;
    m_isDropping = dropping;
    update();
}

void NormalPlaylistView::dragEnterEvent(QDragEnterEvent *event)
{
    if (!event->mimeData()->hasUrls()) {
        event->ignore();
        return;
    }
    setDropping(true);
    event->acceptProposedAction();
}

void NormalPlaylistView::dragLeaveEvent(QDragLeaveEvent *event)
{
    setDropping(false);
    OverlayWidget::dragLeaveEvent(event);
}

void NormalPlaylistView::dropEvent(QDropEvent *event)
{
    setDropping(false);
    event->acceptProposedAction();
    takeUrls(event->mimeData()->urls(), -1);
}
