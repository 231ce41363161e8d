// The queue as a wall of tiles: a picture of the kind of each source, and its name below.
#pragma once

#include "QueueDelegate.h"

class NormalPlaylistIconDelegate final : public QueueDelegate {
    Q_OBJECT

public:
    explicit NormalPlaylistIconDelegate(QObject *parent = nullptr);

    // A tile in a wall of this width, in screen pixels.
    [[nodiscard]] static QSize tileFor(int wallWidth);
    void setTile(const QSize &tile) { m_tile = tile; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    QSize m_tile;
};
