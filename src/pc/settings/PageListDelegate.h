// Paints the list of pages: the page that is shown with a bar in the accent, and a ring while the list has
// the keyboard. GUI thread.
#pragma once

#include <QStyledItemDelegate>

class PageListDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit PageListDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
