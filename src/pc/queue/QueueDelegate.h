// What the two looks of the queue have in common: which row plays, which is under the pointer, and what a row
// is called and drawn with.
//
// Knows the model by its roles alone; geometry stands in one function of each look, which painting and mouse
// share. GUI thread.
#pragma once

#include "PlayQueue.h"

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

class QueueDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    // The row that was played last.
    void setCurrentIndex(const QModelIndex &index) { m_current = index; }
    [[nodiscard]] QModelIndex currentIndex() const { return m_current; }
    // The row that shows it, and how.
    void setMark(const QModelIndex &index, PlayQueue::Mark mark);
    void setHovered(const QModelIndex &index) { m_hovered = index; }
    [[nodiscard]] QModelIndex hovered() const { return m_hovered; }

protected:
    explicit QueueDelegate(QObject *parent);

    [[nodiscard]] PlayQueue::Mark markOf(const QModelIndex &index) const;
    [[nodiscard]] bool isHovered(const QModelIndex &index) const { return index == m_hovered; }
    // The keyboard's cursor is on the row and to be seen.
    [[nodiscard]] static bool hasCursor(const QStyleOptionViewItem &option, const QModelIndex &index);
    [[nodiscard]] static QString iconOf(const QModelIndex &index);
    // Where it lies, or that it is gone.
    [[nodiscard]] static QString softText(const QModelIndex &index);
    // Its length, else its type.
    [[nodiscard]] static QString sideText(const QModelIndex &index);
    static void paintIcon(QPainter *painter, const QRect &place, const QString &name, QRgb color);
    static void paintGround(QPainter *painter, const QRectF &place, QRgb color);
    static void paintFrame(QPainter *painter, const QRectF &place);

private:
    QPersistentModelIndex m_current;
    QPersistentModelIndex m_marked;
    QPersistentModelIndex m_hovered;
    PlayQueue::Mark m_mark{PlayQueue::Mark::None};
};
