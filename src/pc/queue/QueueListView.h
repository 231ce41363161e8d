// The queue's list: rows of two levels that are drawn by their delegate alone, and moved by the mouse.
//
// Takes rows of its own queue for a new order, and files from elsewhere; what becomes of either is left to
// whoever listens. GUI thread.
#pragma once

#include <QTreeView>
#include <QUrl>
#include <QVector>

class PlayQueueModel;
class QueueDelegate;

class QueueListView final : public QTreeView {
    Q_OBJECT

public:
    QueueListView(PlayQueueModel *model, QueueDelegate *delegate, QWidget *parent = nullptr);

    // The row in front of which a drop at a point comes; the number of rows behind the last one.
    [[nodiscard]] int dropRowAt(const QPoint &point) const;

signals:
    void rowsDropped(const QVector<int> &rows, int before);
    void urlsDropped(const QList<QUrl> &urls, int before);

protected:
    void drawRow(QPainter *painter, const QStyleOptionViewItem &options,
                 const QModelIndex &index) const override;
    void drawBranches(QPainter *, const QRect &, const QModelIndex &) const override {}
    void paintEvent(QPaintEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    [[nodiscard]] bool takes(const QDropEvent &event) const;
    void setHovered(const QModelIndex &index);
    void setDropRow(int row);

    PlayQueueModel *m_queue;
    QueueDelegate *m_delegate;
    int m_dropRow{-1};
};
