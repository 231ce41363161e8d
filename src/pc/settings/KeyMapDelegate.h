// Paints the key table and edits its keys; tells when a new key was taken from others. GUI thread.
#pragma once

#include <QItemDelegate>
#include <QList>
#include <QModelIndex>
#include <QRect>

class KeyMapDelegate final : public QItemDelegate {
    Q_OBJECT

public:
    explicit KeyMapDelegate(QObject *parent = nullptr);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

public slots:
    void SLOT_commitData(QWidget *widget);

signals:
    void SIG_KeyConflictIndex(QModelIndex index, QRect indexRectInGlobal, int conflictValue) const;
    void SIG_KeyConflictList(QList<QModelIndex> conflictList, QRect indexRectInGlobal) const;
};
