#include "KeyMapDelegate.h"

#include "KeyMapModel.h"
#include "KeySequenceEditWidget.h"

#include "ui/LookTokens.h"

#include <QAbstractItemView>
#include <QPainter>

namespace {

// Design pixels.
constexpr int RowHeight = 36;
constexpr int Padding = 12;
constexpr int CapHeight = 24;
constexpr int CapPadding = 10;

constexpr QRgb SelectedRow = 0xff1f3a50;

} // namespace

KeyMapDelegate::KeyMapDelegate(QObject *parent)
    : QItemDelegate(parent)
{
}

QWidget *KeyMapDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                      const QModelIndex &index) const
{
    if (index.column() != KeyMapModel::KeyColumn)
        return nullptr;
    auto *editor = new KeySequenceEditWidget(parent);
    auto *self = const_cast<KeyMapDelegate *>(this);
    connect(editor, &KeySequenceEditWidget::SIG_editFinished, self,
            [self, editor] { self->SLOT_commitData(editor); });
    return editor;
}

// It starts with no key.
void KeyMapDelegate::setEditorData(QWidget *, const QModelIndex &) const {}

void KeyMapDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    auto *keys = qobject_cast<KeySequenceEditWidget *>(editor);
    // A view also commits an editor that it leaves without a key pressed.
    if (!keys || !model || !index.isValid() || !keys->isUsed())
        return;
    const int key = keys->keyValue();
    QList<QModelIndex> conflicts;
    for (int row = 0; key != 0 && row < model->rowCount(); ++row) {
        const QModelIndex other = model->index(row, index.column());
        if (row != index.row() && other.data(KeyMapModel::KeyRole).toInt() == key)
            conflicts.append(other);
    }
    model->setData(index, key, KeyMapModel::KeyRole);
    if (conflicts.isEmpty())
        return;
    const QRect place(editor->mapToGlobal(QPoint(0, 0)), editor->size());
    emit SIG_KeyConflictIndex(conflicts.first(), place, key);
    emit SIG_KeyConflictList(conflicts, place);
}

void KeyMapDelegate::SLOT_commitData(QWidget *widget)
{
    emit commitData(widget);
    emit closeEditor(widget);
}

// The base takes a lost focus for the end of an edit, and Enter, Escape and Tab for its own.
bool KeyMapDelegate::eventFilter(QObject *watched, QEvent *event)
{
    auto *editor = qobject_cast<KeySequenceEditWidget *>(watched);
    if (!editor)
        return QItemDelegate::eventFilter(watched, event);
    if (event->type() == QEvent::FocusOut)
        emit closeEditor(editor, RevertModelCache);
    return false;
}

void KeyMapDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                          const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

QSize KeyMapDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {QItemDelegate::sizeHint(option, index).width(), Look::px(RowHeight)};
}

void KeyMapDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    if (isSelected)
        painter->fillRect(option.rect, Look::color(SelectedRow));
    painter->setPen(QColor(255, 255, 255, 20));
    painter->drawLine(QPointF(option.rect.left(), option.rect.bottom() + 0.5),
                      QPointF(option.rect.right() + 1, option.rect.bottom() + 0.5));

    const QString text = index.data().toString();
    const int padding = Look::px(Padding);
    if (index.column() == KeyMapModel::OperationColumn) {
        const QRect place = option.rect.adjusted(padding, 0, -padding, 0);
        painter->setFont(Look::font(13));
        painter->setPen(Look::color(Look::Text));
        painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeft,
                          painter->fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
    } else {
        // A key looks like the cap of one.
        const bool hasKey = index.data(KeyMapModel::KeyRole).toInt() != 0;
        painter->setFont(Look::font(12, QFont::Medium));
        const QString shown = painter->fontMetrics().elidedText(
            text, Qt::ElideRight, option.rect.width() - 2 * padding - 2 * Look::px(CapPadding));
        const QSize size(painter->fontMetrics().horizontalAdvance(shown) + 2 * Look::px(CapPadding),
                         Look::px(CapHeight));
        const QRect cap(
            QPoint(option.rect.left() + padding, option.rect.center().y() - size.height() / 2 + 1), size);
        if (hasKey) {
            painter->setPen(Look::color(isSelected ? Look::AccentHover : Look::Line));
            painter->setBrush(Look::color(Look::Raised));
            painter->drawRoundedRect(QRectF(cap).adjusted(0.5, 0.5, -0.5, -0.5),
                                     Look::px(Look::CornerControl), Look::px(Look::CornerControl));
        }
        painter->setPen(Look::color(hasKey ? Look::Text : Look::Soft));
        painter->drawText(cap, hasKey ? int(Qt::AlignCenter) : int(Qt::AlignVCenter | Qt::AlignLeft), shown);
    }
    painter->restore();
}
