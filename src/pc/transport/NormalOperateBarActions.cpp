// What the controls of the transport bar do, and how they explain themselves.
#include "NormalOperateBar.h"

#include "NormalProgressBar.h"
#include "OperateBarRows.h"
#include "ThreeDMenu.h"
#include "TransportButton.h"
#include "VolumeControl.h"
#include "VolumeSlider.h"
#include "playcontrol/BehaviourNames.h"
#include "ui/FocusRing.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>

void NormalOperateBar::retranslate()
{
    for (const OperateBarRow &row : OperateBarRows::all()) {
        TransportButton *control = button(row.button);
        const QString tip = tr(row.tip);
        control->setProperty(TipProperty, tip);
        control->setAccessibleName(tip.trimmed());
    }
    m_progress->setAccessibleName(tr("Position"));
    m_volumeSlider->setAccessibleName(tr("Volume"));
}

void NormalOperateBar::behaviour(const char *name)
{
    emit sig_userBehaviour(QLatin1String(name), QLatin1String(BehaviourNames::Used));
}

// ---- transport

void NormalOperateBar::slot_playClicked()
{
    if (m_commands.hasSource())
        m_commands.togglePause();
}

void NormalOperateBar::slot_pauseClicked()
{
    if (m_commands.hasSource())
        m_commands.togglePause();
}

void NormalOperateBar::slot_stopClicked()
{
    emit sig_stopClicked();
}

void NormalOperateBar::slot_fastClicked()
{
    m_commands.speedUp(true);
    behaviour(BehaviourNames::FastUsed);
}

void NormalOperateBar::slot_rewindClicked()
{
    m_commands.speedUp(false);
    behaviour(BehaviourNames::RewindUsed);
}

void NormalOperateBar::slot_lastChapterClicked()
{
    if (m_commands.chapterCount() <= 1) {
        emit sig_playLast();
        return;
    }
    m_commands.lastChapter();
    behaviour(BehaviourNames::LastChapterUsed);
}

void NormalOperateBar::slot_nextChapterClicked()
{
    if (m_commands.chapterCount() <= 1) {
        emit sig_playNext();
        return;
    }
    m_commands.nextChapter();
    behaviour(BehaviourNames::NextChapterUsed);
}

void NormalOperateBar::slot_nextFrameClicked()
{
    emit sig_nextFrameClicked();
    stepFrame(true);
}

void NormalOperateBar::slot_lastFrameClicked()
{
    emit sig_previousFrameClicked();
    stepFrame(false);
}

void NormalOperateBar::stepFrame(bool forward)
{
    m_commands.stepFrame(forward);
    behaviour(BehaviourNames::FrameOperateUsed);
}

void NormalOperateBar::slot_moveProgressSlider(int nValue)
{
    m_seconds = nValue;
    m_progress->setPosition(nValue);
    showTime();
    emit sig_seek(nValue);
    slot_hidePreviewButton();
    emit sig_seeked();
}

// ---- sound

void NormalOperateBar::slot_addVolume()
{
    slot_changeVolume(1);
}

void NormalOperateBar::slot_reduceVolume()
{
    slot_changeVolume(-1);
}

void NormalOperateBar::slot_changeVolume(int nCount)
{
    m_volume->changeVolume(nCount);
}

void NormalOperateBar::slot_moveVolumnSlider(int nValue)
{
    m_volume->setFromSlider(nValue);
}

void NormalOperateBar::slot_muteClicked()
{
    m_volume->toggleMute();
}

void NormalOperateBar::slot_VolumnClicked()
{
    m_volume->toggleMute();
}

// ---- views

void NormalOperateBar::slot_fullScreenClicked()
{
    emit sig_fullScreenClicked();
}

void NormalOperateBar::slot_normalScreenClicked()
{
    emit sig_normalScreenClicked();
}

void NormalOperateBar::slot_previewClicked()
{
    emit sig_previewClicked(button(Button::Preview)->isChecked());
}

void NormalOperateBar::slot_clickPreview()
{
    setPreviewAway(false);
    button(Button::Preview)->click();
}

void NormalOperateBar::slot_hidePreviewButton()
{
    setPreviewAway(true);
}

void NormalOperateBar::setPreviewAway(bool away)
{
    if (m_previewAway == away)
        return;
    m_previewAway = away;
    putButtons();
}

void NormalOperateBar::slot_playlistClicked()
{
    emit sig_playlistClicked(button(Button::Playlist)->isChecked());
}

void NormalOperateBar::slot_updatePlaylistButton(bool bChecked)
{
    button(Button::Playlist)->setChecked(bChecked);
}

// ---- 3D

void NormalOperateBar::slot_3dTextClicked()
{
    popUp3DMenu(button(Button::ThreeDText));
}

void NormalOperateBar::slot_3dCubeClicked()
{
    popUp3DMenu(button(Button::ThreeDCube));
}

void NormalOperateBar::popUp3DMenu(TransportButton *under)
{
    QMenu *menu = m_threeD->build();
    connect(menu, &QMenu::triggered, this, &NormalOperateBar::slot_dealMenuAction);
    const QPoint corner = under->mapToGlobal(QPoint(under->width(), 0));
    const QSize size = menu->sizeHint();
    menu->popup(corner - QPoint(size.width(), size.height()));
}

void NormalOperateBar::slot_dealMenuAction(QAction *action)
{
    m_threeD->deal(action);
}

// ---- keyboard and tool tips

bool NormalOperateBar::takesKey(const QKeyEvent &event) const
{
    if (!isVisible() || !window()->property(FocusRing::Property).toBool())
        return false;
    const QWidget *current = window()->focusWidget();
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return qobject_cast<const TransportButton *>(current) != nullptr;
    case Qt::Key_Left:
    case Qt::Key_Right:
        return qobject_cast<const QAbstractSlider *>(current) != nullptr;
    default:
        return false;
    }
}

bool NormalOperateBar::handleKey(QKeyEvent *event)
{
    const bool isUsed = takesKey(*event);
    const bool isTab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
    const bool comes = isTab && isVisible()
                       && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (!isUsed && !comes)
        return false;
    QWidget *current = window()->focusWidget();
    if (isTab) {
        setKeyboardUsed(true);
        // The first press shows where the cursor is.
        if (isUsed || current == nullptr)
            focusNextPrevChild(event->key() == Qt::Key_Tab && !(event->modifiers() & Qt::ShiftModifier));
        update();
    } else if (event->key() == Qt::Key_Escape) {
        setKeyboardUsed(false);
    } else if (auto *pressed = qobject_cast<TransportButton *>(current)) {
        pressed->click();
    } else {
        QCoreApplication::sendEvent(current, event);
    }
    return true;
}

void NormalOperateBar::setKeyboardUsed(bool used)
{
    if (window()->property(FocusRing::Property).toBool() == used)
        return;
    window()->setProperty(FocusRing::Property, used);
    if (QWidget *current = window()->focusWidget())
        current->update();
}

void NormalOperateBar::buildToolTip(QWidget *control) const
{
    const QString tip = control->property(TipProperty).toString().trimmed();
    const int hotKey = control->property(HotKeyProperty).toInt();
    const QString key = hotKey >= 0 && m_keyText ? m_keyText(hotKey) : QString();
    control->setToolTip(key.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, key));
}

bool NormalOperateBar::eventFilter(QObject *watched, QEvent *event)
{
    auto *control = qobject_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::Enter:
        // Anew each time, as the key map may have changed since.
        if (control != nullptr && control->property(TipProperty).isValid())
            buildToolTip(control);
        break;
    case QEvent::MouseButtonPress:
        setKeyboardUsed(false);
        break;
    case QEvent::FocusIn: {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            setKeyboardUsed(true);
        break;
    }
    default:
        break;
    }
    return NormalTransparentBar::eventFilter(watched, event);
}
