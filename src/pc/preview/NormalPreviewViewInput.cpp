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
#include <vector>

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

bool NormalPreviewView::handleKey(QKeyEvent *event)
{
    if (m_state == State::Closed
        || (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0)
        return false;
    // Without pictures there is nothing but the way out.
    std::vector<QWidget *> stops{m_closeButton};
    if (m_note->text().isEmpty())
        stops = {m_list, m_zoom, m_quantity, m_closeButton};
    const bool isUsed = window()->property(FocusRing::Property).toBool();
    const auto stop = std::find(stops.begin(), stops.end(), window()->focusWidget());
    QWidget *current = isUsed && stop != stops.end() ? *stop : stops.front();
    switch (event->key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab: {
        const bool isBack = event->key() == Qt::Key_Backtab || (event->modifiers() & Qt::ShiftModifier) != 0;
        // The first press shows where the cursor is.
        const auto at = std::size_t(std::find(stops.begin(), stops.end(), current) - stops.begin());
        const std::size_t next = !isUsed ? 0 : (at + (isBack ? stops.size() - 1 : 1)) % stops.size();
        stops[next]->setFocus(isBack ? Qt::BacktabFocusReason : Qt::TabFocusReason);
        setKeyboardUsed(true);
        return true;
    }
    case Qt::Key_Escape:
        emit sig_closeClicked();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current == m_closeButton)
            m_closeButton->click();
        else if (current == m_list && m_hasCursor)
            slot_seek(m_list->currentIndex());
        else
            return false;
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (auto *slider = qobject_cast<DialogSlider *>(current)) {
            slider->triggerAction(event->key() == Qt::Key_Left ? QAbstractSlider::SliderSingleStepSub
                                                               : QAbstractSlider::SliderSingleStepAdd);
            return true;
        }
        [[fallthrough]];
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (current != m_list)
            return false;
        moveCursor(event->key());
        return true;
    default:
        return false;
    }
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
