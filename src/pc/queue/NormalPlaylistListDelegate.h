// The queue as a list: a row a source with its folder below the name, and the titles of a disc under it.
#pragma once

#include "QueueDelegate.h"

class NormalPlaylistListDelegate final : public QueueDelegate {
    Q_OBJECT

public:
    explicit NormalPlaylistListDelegate(QObject *parent = nullptr);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

    // Where the mark stands that expands a disc; empty for all others.
    [[nodiscard]] static QRect expandRect(const QRect &row, const QModelIndex &index);

signals:
    void sig_changeExpandState(QModelIndex index);

private:
    struct Parts {
        QRect ground;
        QRect icon;
        QRect expand;
        QRect name;
        QRect soft; // empty: one line only
        QRect side;
    };
    [[nodiscard]] static Parts partsOf(const QRect &row, const QModelIndex &index, int sideWidth);
};
