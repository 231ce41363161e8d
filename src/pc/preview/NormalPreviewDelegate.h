// Draws a row of the strip: the picture, rounded, with its time below; a place holder where there is no
// picture.
//
// Keeps the last pictures unpacked, as a file is too slow to be read at each stroke. GUI thread.
#pragma once

#include <QCache>
#include <QPixmap>
#include <QStyledItemDelegate>

class NormalPreviewDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit NormalPreviewDelegate(QObject *parent = nullptr);

    void setCellSize(const QSize &size);
    // The keyboard's cursor is on the list.
    void setCursorShown(bool shown) { m_cursorShown = shown; }
    // The rows are of another source.
    void forgetPictures() { m_pictures.clear(); }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    [[nodiscard]] QPixmap picture(const QModelIndex &index) const;

    QSize m_cell;
    bool m_cursorShown{false};
    mutable QCache<int, QPixmap> m_pictures; // by second, cost in KiB
};
