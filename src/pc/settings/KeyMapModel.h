// The table of one face's operations and their keys, as the settings page edits it.
//
// A key belongs to one operation: who sets a key takes it from the others. Stored rubbish shows as no key.
// Two columns; the key's value stands at KeyRole. Nothing is stored before map() is. GUI thread.
#pragma once

#include "keys/KeyMapTables.h"

#include <QAbstractTableModel>
#include <QVector>

class KeyMapModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { OperationColumn = 0, KeyColumn = 1 };
    static constexpr int OperationRole = Qt::UserRole + 1;
    static constexpr int KeyRole = Qt::UserRole + 2;

    explicit KeyMapModel(KeyMapTables::Mode mode, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

    // The stored map, completed by what every map must have.
    void load(const KeyMap &stored);
    void setDefaults();
    // Every operation of the table, those without a key with the value 0, so that none gets lost.
    [[nodiscard]] KeyMap map() const;

    [[nodiscard]] bool isDefault(int row) const;
    // Gives an operation its default key back and takes that from others.
    void reset(int row);
    // The other rows that hold a key; none for no key.
    [[nodiscard]] QList<QModelIndex> conflictsOf(int row, int key) const;
    // The last change with all that it took from others can be taken back once.
    [[nodiscard]] bool canUndo() const { return !m_before.isEmpty(); }
    void undo();

    // For a change of language.
    void retranslate();

signals:
    // Operations whose key was taken by the row.
    void keysTaken(int row, const QList<int> &operations);

private:
    void setKey(int row, int key);
    void tellAll();

    KeyMapTables::Mode m_mode;
    QVector<int> m_operations;
    QVector<int> m_keys;
    QVector<int> m_before; // the keys before the last change
};
