// Keys, wheel and the pointer of the strip.
#include "NormalPreviewView.h"

#include "NormalPreviewDelegate.h"

#include "dialogs/DialogSlider.h"
#include "transport/TransportButton.h"
#include "ui/FocusRing.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int StepOfWheel = 120;

} // namespace

bool NormalPreviewView::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_list->viewport()) {
        if (event->type() == QEvent::Wheel) {
            // A strip of one line: the wheel moves it sideways.
            const auto *wheel = static_cast<QWheelEvent *>(event);
            const QPoint angle = wheel->angleDelta();
            const int turned = std::abs(angle.y()) >= std::abs(angle.x()) ? angle.y() : angle.x();
            QScrollBar *bar = m_list->horizontalScrollBar();
            bar->setValue(bar->value() - turned * m_cells.cell.width() / StepOfWheel);
            m_isFollowing = false;
            return true;
        }
        if (event->type() == QEvent::MouseButtonPress)
            setKeyboardUsed(false);
    }
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    // Where the strip is an ordinary widget its parts get the keys first.
    if (event->type() == QEvent::KeyPress && watched != m_list->viewport()
        && handleKey(static_cast<QKeyEvent *>(event)))
        return true;
    return OverlayWidget::eventFilter(watched, event);
}

void NormalPreviewView::keyPressEvent(QKeyEvent *event)
{
    if (!handleKey(event))
        OverlayWidget::keyPressEvent(event);
}

std::vector<QWidget *> NormalPreviewView::stops() const
{
    // Without pictures there is nothing but the way out.
    if (!m_note->text().isEmpty())
        return {m_closeButton};
    return {m_list, m_zoom, m_quantity, m_closeButton};
}

QWidget *NormalPreviewView::keyboardPart() const
{
    const std::vector<QWidget *> all = stops();
    const bool isUsed = window()->property(FocusRing::Property).toBool();
    const auto stop = std::find(all.begin(), all.end(), window()->focusWidget());
    return isUsed && stop != all.end() ? *stop : all.front();
}

bool NormalPreviewView::takesKey(const QKeyEvent &event) const
{
    if (m_state == State::Closed
        || (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0)
        return false;
    const QWidget *current = keyboardPart();
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Escape:
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return current == m_closeButton || (current == m_list && m_hasCursor);
    case Qt::Key_Left:
    case Qt::Key_Right:
        return current == m_list || qobject_cast<const DialogSlider *>(current) != nullptr;
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return current == m_list;
    default:
        return false;
    }
}

bool NormalPreviewView::handleKey(QKeyEvent *event)
{
    if (!takesKey(*event))
        return false;
    QWidget *current = keyboardPart();
    switch (event->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab: {
        const std::vector<QWidget *> all = stops();
        const bool isUsed = window()->property(FocusRing::Property).toBool();
        const bool isBack = event->key() == Qt::Key_Backtab || (event->modifiers() & Qt::ShiftModifier) != 0;
        // The first press shows where the cursor is.
        const auto at = std::size_t(std::find(all.begin(), all.end(), current) - all.begin());
        const std::size_t next = !isUsed ? 0 : (at + (isBack ? all.size() - 1 : 1)) % all.size();
        all[next]->setFocus(isBack ? Qt::BacktabFocusReason : Qt::TabFocusReason);
        setKeyboardUsed(true);
        break;
    }
    case Qt::Key_Escape:
        emit sig_closeClicked();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current == m_closeButton)
            m_closeButton->click();
        else
            slot_seek(m_list->currentIndex());
        break;
    default:
        if (auto *slider = qobject_cast<DialogSlider *>(current))
            slider->triggerAction(event->key() == Qt::Key_Left ? QAbstractSlider::SliderSingleStepSub
                                                               : QAbstractSlider::SliderSingleStepAdd);
        else
            moveCursor(event->key());
    }
    return true;
}

int NormalPreviewView::nextRow(int from, int direction) const
{
    int row = from + direction;
    while (row >= 0 && row < m_model->rowCount() && m_list->isRowHidden(row))
        row += direction;
    return row >= 0 && row < m_model->rowCount() ? row : -1;
}

void NormalPreviewView::moveCursor(int key)
{
    const int last = m_model->rowCount();
    if (last == 0)
        return;
    int row = m_hasCursor ? m_list->currentIndex().row() : -1;
    const auto move = [&](int direction, int count) {
        for (int i = 0; i < count; ++i) {
            const int next = nextRow(row, direction);
            if (next < 0)
                break;
            row = next;
        }
    };
    if (row < 0) {
        // The first press shows where the cursor is: at what plays.
        row = std::max(0, m_playingRow);
    } else {
        switch (key) {
        case Qt::Key_Left:
            move(-1, 1);
            break;
        case Qt::Key_Right:
            move(1, 1);
            break;
        case Qt::Key_PageUp:
            move(-1, m_cells.columns);
            break;
        case Qt::Key_PageDown:
            move(1, m_cells.columns);
            break;
        case Qt::Key_Home:
            row = std::max(0, nextRow(-1, 1));
            break;
        case Qt::Key_End:
            row = std::max(0, nextRow(last, -1));
            break;
        default:
            break;
        }
    }
    m_isFollowing = false;
    m_list->setFocus(Qt::OtherFocusReason);
    setKeyboardUsed(true);
    m_hasCursor = true;
    m_list->setCurrentIndex(m_model->index(row, 0));
    // By whole pictures, so that none is cut at the ends.
    const int cell = row / PreviewPlan::stepOf(m_quantity->value());
    const int first = m_list->horizontalScrollBar()->value() / std::max(1, m_cells.cell.width());
    if (cell < first || cell >= first + m_cells.columns)
        scrollToCell(cell < first ? cell : cell - m_cells.columns + 1);
}

void NormalPreviewView::setKeyboardUsed(bool used)
{
    window()->setProperty(FocusRing::Property, used);
    m_delegate->setCursorShown(used && window()->focusWidget() == m_list);
    m_list->viewport()->update();
    for (QWidget *part : {static_cast<QWidget *>(m_zoom), static_cast<QWidget *>(m_quantity),
                          static_cast<QWidget *>(m_closeButton)})
        part->update();
    update();
}
