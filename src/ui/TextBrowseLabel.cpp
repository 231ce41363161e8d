#include "TextBrowseLabel.h"

#include <QPainter>
#include <QStyle>

namespace {

constexpr int SlowStepMs = 40;
constexpr int QuickStepMs = 5;
constexpr int Gap = 48; // pixels between the end of a copy and the start of the next

} // namespace

TextBrowseLabel::TextBrowseLabel(QWidget *parent)
    : QLabel(parent)
{
    m_timer.setInterval(SlowStepMs);
    connect(&m_timer, &QTimer::timeout, this, &TextBrowseLabel::slot_paintBrowse);
}

TextBrowseLabel::TextBrowseLabel(const QString &text, QWidget *parent)
    : TextBrowseLabel(parent)
{
    setText(text);
}

void TextBrowseLabel::setText(const QString &text)
{
    QLabel::setText(text);
    QTimer::singleShot(0, this, &TextBrowseLabel::slot_updateText);
}

void TextBrowseLabel::setBrowseEnabled(bool enabled)
{
    m_browseEnabled = enabled;
    startOrStop();
}

QSize TextBrowseLabel::minimumSizeHint() const
{
    // A long text must not keep its window wide.
    return {0, QLabel::minimumSizeHint().height()};
}

int TextBrowseLabel::textWidth() const
{
    return fontMetrics().horizontalAdvance(text());
}

int TextBrowseLabel::period() const
{
    return textWidth() + Gap;
}

void TextBrowseLabel::slot_updateText()
{
    m_needBrowse = textWidth() > contentsRect().width();
    m_position = 0;
    startOrStop();
    update();
}

void TextBrowseLabel::slot_paintBrowse()
{
    m_position = (m_position + 1) % period();
    update();
}

void TextBrowseLabel::startOrStop()
{
    const bool run = m_browseEnabled && m_needBrowse && isVisible();
    if (run == m_timer.isActive())
        return;
    if (run)
        m_timer.start();
    else
        m_timer.stop();
}

void TextBrowseLabel::paintEvent(QPaintEvent *event)
{
    if (!m_needBrowse) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const QRect area = contentsRect();
    painter.setClipRect(area);
    if (!m_browseEnabled) {
        const QString shortened = fontMetrics().elidedText(text(), Qt::ElideRight, area.width());
        style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(),
                              shortened, foregroundRole());
        return;
    }
    const int flags = static_cast<int>(Qt::AlignLeft | (alignment() & Qt::AlignVertical_Mask));
    for (int x = area.x() - m_position; x < area.right(); x += period()) {
        const QRect copy(x, area.y(), textWidth(), area.height());
        style()->drawItemText(&painter, copy, flags, palette(), isEnabled(), text(), foregroundRole());
    }
}

void TextBrowseLabel::showEvent(QShowEvent *event)
{
    QLabel::showEvent(event);
    slot_updateText();
}

void TextBrowseLabel::hideEvent(QHideEvent *event)
{
    QLabel::hideEvent(event);
    m_timer.stop();
}

void TextBrowseLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    slot_updateText();
}

void TextBrowseLabel::enterEvent(QEvent *event)
{
    QLabel::enterEvent(event);
    m_timer.setInterval(QuickStepMs);
}

void TextBrowseLabel::leaveEvent(QEvent *event)
{
    QLabel::leaveEvent(event);
    m_timer.setInterval(SlowStepMs);
}
