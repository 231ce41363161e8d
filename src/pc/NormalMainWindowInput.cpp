// What mouse, keyboard and drops do in the window of PC mode.
#include "NormalMainWindow.h"

#include "NormalPlayControl.h"
#include "PcKeyActions.h"
#include "dialogs/NormalMessageBoxFactory.h"
#include "menus/OpticalDiscs.h"
#include "menus/PlayMenu.h"
#include "overlays/NormalMetaView.h"
#include "overlays/PlayOverlays.h"
#include "start/NormalStartView.h"
#include "transport/NormalOperateBar.h"
#include "transport/VolumeControl.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"
#include "keys/AppEventFilter.h"
#include "platform/WindowMessage.h"
#include "playcontrol/DropReader.h"
#include "player/QPlayer.h"
#include "preview/SmartPreview.h"
#include "queue/NormalPlaylistView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDebug>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QStackedWidget>

void NormalMainWindow::slot_hotKey(KeyOperateType type)
{
    if (type == KeyOperate_SmartView) {
        if (m_control->hasSource())
            m_overlays->bar()->slot_clickPreview();
    } else if (type == KeyOperate_About)
        slot_aboutAction();
    else if (type == KeyOperate_SendFeedback)
        slot_feedbackAction();
    else if (type == KeyOperate_Close)
        slot_closeClicked();
    else if (!m_playMenu->run(type) && m_keyActions && m_control->hasSource())
        m_keyActions->run(type);
}

void NormalMainWindow::slot_dealMenuAction(QAction *action)
{
    m_playMenu->slot_dealMenuAction(action);
}

void NormalMainWindow::toggleInformation()
{
    const QString key = QLatin1String(SettingsKeys::PC_ShowMeta);
    m_settings.setValue(key, !m_settings.value(key).toBool());
    m_overlays->metaView()->updateShown();
}

void NormalMainWindow::slot_changeVolume(int nCount)
{
    if (!m_isEngineReady || !m_control->hasSource())
        return;
    for (int step = 0; step < qAbs(nCount); ++step)
        m_overlays->bar()->volumeControl()->changeVolume(nCount < 0 ? -1 : 1);
    if (nCount != 0)
        m_overlays->wake();
}

bool NormalMainWindow::isKeyOfPart(const QKeyEvent &event) const
{
    return isPlayViewShown()
           && (m_overlays->playlist()->takesKey(event) || m_overlays->preview()->takesKey(event)
               || (m_overlays->isAwake() && m_overlays->bar()->takesKey(event)));
}

void NormalMainWindow::keyPressEvent(QKeyEvent *event)
{
    // Its operation has run: a key acts once.
    if (AppEventFilter::instance()->isKeySpent()) {
        QWidget::keyPressEvent(event);
        return;
    }
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    if (isPlayViewShown()
        && (m_overlays->playlist()->handleKey(event) || m_overlays->preview()->handleKey(event)))
        return;
    if (isPlayViewShown() && (isTab || m_overlays->isAwake()) && m_overlays->bar()->handleKey(event)) {
        m_overlays->wake();
        return;
    }
    if (event->key() == Qt::Key_Escape && isFullScreen())
        slot_restoreClicked();
    else if (isEnter && event->modifiers().testFlag(Qt::AltModifier))
        slot_fullScreen();
    else if (event->key() == Qt::Key_Plus)
        slot_changeVolume(1);
    else
        QWidget::keyPressEvent(event);
}

// Over the picture Tab goes along the bar, which stands in a window of its own.
bool NormalMainWindow::focusNextPrevChild(bool next)
{
    return !isPlayViewShown() && QWidget::focusNextPrevChild(next);
}

// ---- mouse

void NormalMainWindow::contextMenuEvent(QContextMenuEvent *event)
{
    QVector<MenuState::Entry> discs;
    const auto known = m_discs->discs();
    for (const OpticalDiscs::Disc &disc : known)
        discs.append(
            {disc.drive, {}, disc.label.isEmpty() ? disc.drive + QLatin1Char(':') : disc.label, false});
    m_discs->refresh(); // for the next time
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    m_playMenu->fill(menu, m_playMenu->state(discs));
    connect(menu, &QMenu::triggered, this, &NormalMainWindow::slot_dealMenuAction);
    menu->popup(event->globalPos());
    event->accept();
}

void NormalMainWindow::mousePressEvent(QMouseEvent *event)
{
    passMouseToDisc(*event);
    m_overlays->playlist()->setKeyboardUsed(false);
    m_isPressedOnPicture =
        event->button() == Qt::LeftButton && isPlayViewShown() && !isFullScreen() && !isMaximized();
    m_pressedAt = event->globalPos() - pos();
    QWidget::mousePressEvent(event);
}

void NormalMainWindow::mouseMoveEvent(QMouseEvent *event)
{
    passMouseToDisc(*event);
    // The window is taken by its picture; a small slip of a click does not count.
    if (m_isPressedOnPicture && event->buttons().testFlag(Qt::LeftButton)
        && (event->globalPos() - pos() - m_pressedAt).manhattanLength() >= QApplication::startDragDistance())
        slot_updatePosition(event->globalPos() - m_pressedAt);
    QWidget::mouseMoveEvent(event);
}

void NormalMainWindow::mouseReleaseEvent(QMouseEvent *event)
{
    passMouseToDisc(*event);
    m_isPressedOnPicture = false;
    QWidget::mouseReleaseEvent(event);
}

void NormalMainWindow::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_isPressedOnPicture = false;
    if (event->button() == Qt::LeftButton && isPlayViewShown())
        slot_fullScreen();
    QWidget::mouseDoubleClickEvent(event);
}

void NormalMainWindow::passMouseToDisc(const QMouseEvent &event)
{
    if (m_player == nullptr || !isPlayViewShown())
        return;
    const auto message = WindowMessage::ofMouseEvent(event);
    if (!message || !m_player->hasDiscMenu())
        return;
    const QPoint origin = m_stack->mapTo(this, QPoint(0, 0));
    m_player->forwardWindowMessage(message->id, message->wParam, message->lParam, message->x - origin.x(),
                                   message->y - origin.y());
}

bool NormalMainWindow::nativeEvent(const QByteArray &eventType, void *message, long *result)
{
    if (m_player != nullptr && isPlayViewShown()) {
        const auto read = WindowMessage::ofNativeEvent(eventType, message);
        if (read)
            m_player->forwardWindowMessage(read->id, read->wParam, read->lParam, read->x, read->y);
    }
    return QWidget::nativeEvent(eventType, message, result);
}

// ---- drops

void NormalMainWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!m_drops->rule().accepts(event->mimeData()->urls(), m_control->hasSource()))
        return;
    m_startView->setDropping(true);
    event->acceptProposedAction();
}

void NormalMainWindow::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_startView->setDropping(false);
    QWidget::dragLeaveEvent(event);
}

void NormalMainWindow::dropEvent(QDropEvent *event)
{
    m_startView->setDropping(false);
    event->acceptProposedAction();
    qInfo() << "[Play control] Drag to player";
    m_drops->read(event->mimeData()->urls(), m_control->hasSource());
}

void NormalMainWindow::takeDrop(const DropRule::Outcome &outcome)
{
    if (!outcome.first.isEmpty()) {
        m_droppedSubtitles = outcome.subtitles;
        // With the first among them the others follow it.
        if (!outcome.queue.isEmpty())
            m_overlays->playlist()->addSources(QStringList(outcome.first) + outcome.queue);
        slot_playSource(outcome.first);
    } else if (m_control->hasSource()) {
        for (const QString &subtitle : outcome.subtitles)
            emit sig_addSubtitle(subtitle);
    }
    if (!outcome.messages.isEmpty())
        NormalMessageBoxFactory::showNote(this, outcome.messages.join(QLatin1Char('\n')));
}

void NormalMainWindow::addDroppedSubtitles()
{
    for (const QString &subtitle : qAsConst(m_droppedSubtitles))
        emit sig_addSubtitle(subtitle);
    m_droppedSubtitles.clear();
}
