#include "KeySequenceEditWidget.h"

#include "keys/KeyMapTables.h"
#include "ui/LookTokens.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

// Design pixels.
constexpr int MarginX = 3;
constexpr int MarginY = 10;

constexpr QRgb Field = 0xff212729;

// A key's own modifier bits are no part of it.
int valueOf(const QKeyEvent *event)
{
    return KeyMapTables::normalizedKey(event->key() + int(event->modifiers()));
}

} // namespace

KeySequenceEditWidget::KeySequenceEditWidget(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setAccessibleName(tr("New key"));
}

void KeySequenceEditWidget::setKeySequence(const QKeySequence &sequence)
{
    m_sequence = sequence;
    update();
}

int KeySequenceEditWidget::keyValue() const
{
    return m_sequence.isEmpty() ? 0 : KeyMapTables::normalizedKey(m_sequence[0]);
}

QString KeySequenceEditWidget::text() const
{
    return KeyMapTables::keyText({{0, keyValue()}}, 0);
}

// Tab, the shortcuts of the window and what would close the dialog are keys like all others here.
bool KeySequenceEditWidget::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        keyPressEvent(static_cast<QKeyEvent *>(event));
        return true;
    }
    return QWidget::event(event);
}

void KeySequenceEditWidget::keyPressEvent(QKeyEvent *event)
{
    event->accept();
    if (!KeyMapTables::isBindable(event->key()))
        return;
    // Held since before the editor was there.
    if (event->isAutoRepeat() && !m_isUsed)
        return;
    m_isUsed = true;
    const int value = valueOf(event);
    setKeySequence(value == m_ignoredKey ? QKeySequence() : QKeySequence(value));
}

void KeySequenceEditWidget::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    if (!KeyMapTables::isBindable(event->key()) || event->isAutoRepeat() || !m_isUsed)
        return;
    if (valueOf(event) == m_ignoredKey)
        setKeySequence({});
    emit SIG_editFinished();
}

void KeySequenceEditWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), Look::color(Field));
    painter.setPen(QPen(Look::color(Look::AccentHover), Look::px(1)));
    const QRectF frame =
        QRectF(rect()).adjusted(Look::px(MarginX), Look::px(MarginY), -Look::px(MarginX), -Look::px(MarginY));
    painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), Look::px(Look::CornerControl),
                            Look::px(Look::CornerControl));
    painter.setPen(Look::color(m_sequence.isEmpty() ? Look::Soft : Look::Text));
    painter.setFont(Look::font(13));
    painter.drawText(rect(), Qt::AlignCenter, text());
}
