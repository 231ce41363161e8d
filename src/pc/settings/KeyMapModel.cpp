#include "KeyMapModel.h"

#include "SettingRow.h"

#include <QCoreApplication>

namespace {

constexpr int kNoKey = 0;

int usableKey(int key)
{
    if (key <= 0)
        return kNoKey;
    const int normal = KeyMapTables::normalizedKey(key);
    const int code = normal & ~int(Qt::KeyboardModifierMask);
    return KeyMapTables::isBindable(code) ? normal : kNoKey;
}

} // namespace

KeyMapModel::KeyMapModel(KeyMapTables::Mode mode, QObject *parent)
    : QAbstractTableModel(parent)
    , m_mode(mode)
{
    const QList<int> removed = KeyMapTables::removedKeys(mode);
    const QList<int> order = KeyMapTables::settingsOrder();
    for (int operation : order) {
        if (!removed.contains(operation))
            m_operations.append(operation);
    }
    m_keys.resize(m_operations.size());
    setDefaults();
}

int KeyMapModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_operations.size();
}

int KeyMapModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant KeyMapModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_operations.size())
        return {};
    const int operation = m_operations.at(index.row());
    const int key = m_keys.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        if (index.column() == OperationColumn)
            return KeyMapTables::keyOperateName(operation);
        return KeyMapTables::keyText({{operation, key}}, operation);
    case OperationRole:
        return operation;
    case KeyRole:
        return key;
    default:
        return {};
    }
}

QVariant KeyMapModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == OperationColumn
               ? SettingRow::translated(QT_TRANSLATE_NOOP("NormalSettingPage", "Operation"))
               : SettingRow::translated(QT_TRANSLATE_NOOP("NormalSettingPage", "Key"));
}

Qt::ItemFlags KeyMapModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (index.column() == KeyColumn)
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool KeyMapModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.row() >= m_operations.size() || index.column() != KeyColumn
        || role != KeyRole)
        return false;
    bool isNumber = false;
    const int key = value.toInt(&isNumber);
    if (!isNumber)
        return false;
    setKey(index.row(), usableKey(key));
    return true;
}

void KeyMapModel::setKey(int row, int key)
{
    // A stored map may hold one key twice: whoever is given it again has it alone.
    const QList<QModelIndex> conflicts = conflictsOf(row, key);
    if (m_keys.at(row) == key && conflicts.isEmpty())
        return;
    m_before = m_keys;
    QList<int> taken;
    for (const QModelIndex &other : conflicts) {
        m_keys[other.row()] = kNoKey;
        taken.append(m_operations.at(other.row()));
        emit dataChanged(other, other);
    }
    m_keys[row] = key;
    emit dataChanged(index(row, KeyColumn), index(row, KeyColumn));
    if (!taken.isEmpty())
        emit keysTaken(row, taken);
}

QList<QModelIndex> KeyMapModel::conflictsOf(int row, int key) const
{
    QList<QModelIndex> found;
    const int wanted = usableKey(key);
    for (int other = 0; wanted != kNoKey && other < m_keys.size(); ++other) {
        if (other != row && m_keys.at(other) == wanted)
            found.append(index(other, KeyColumn));
    }
    return found;
}

void KeyMapModel::load(const KeyMap &stored)
{
    const KeyMap map = KeyMapTables::completed(stored, m_mode);
    for (int row = 0; row < m_operations.size(); ++row)
        m_keys[row] = usableKey(map.value(m_operations.at(row), kNoKey));
    m_before.clear();
    tellAll();
}

void KeyMapModel::setDefaults()
{
    const KeyMap map = KeyMapTables::defaultKeyMap(m_mode);
    for (int row = 0; row < m_operations.size(); ++row)
        m_keys[row] = usableKey(map.value(m_operations.at(row), kNoKey));
    m_before.clear();
    tellAll();
}

KeyMap KeyMapModel::map() const
{
    KeyMap map;
    for (int row = 0; row < m_operations.size(); ++row)
        map.insert(m_operations.at(row), m_keys.at(row));
    return map;
}

bool KeyMapModel::isDefault(int row) const
{
    return m_keys.at(row) == usableKey(KeyMapTables::defaultKeyMap(m_mode).value(m_operations.at(row)));
}

void KeyMapModel::reset(int row)
{
    if (row >= 0 && row < m_keys.size())
        setKey(row, usableKey(KeyMapTables::defaultKeyMap(m_mode).value(m_operations.at(row))));
}

void KeyMapModel::undo()
{
    if (!canUndo())
        return;
    m_keys.swap(m_before);
    m_before.clear();
    tellAll();
}

void KeyMapModel::retranslate()
{
    tellAll();
    emit headerDataChanged(Qt::Horizontal, OperationColumn, KeyColumn);
}

void KeyMapModel::tellAll()
{
    emit dataChanged(index(0, OperationColumn), index(m_keys.size() - 1, KeyColumn));
}
