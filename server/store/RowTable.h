// A struct and the columns that its members stand in. One list of them reads rows and writes
// them, so that a column is named in one place.
#pragma once

#include "Connection.h"
#include "Statement.h"

#include <QStringList>

#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

template<class Row>
struct Column {
    const char *name;
    std::variant<int Row::*, qint64 Row::*, double Row::*, bool Row::*, QString Row::*> member;
};

template<class Row>
class RowTable final {
public:
    // The first column is the key.
    RowTable(const QString &table, std::vector<Column<Row>> columns)
        : m_columns(std::move(columns))
    {
        QStringList names;
        QStringList marks;
        QStringList updates;
        for (const Column<Row> &column : m_columns) {
            names << QString::fromLatin1(column.name);
            marks << QStringLiteral("?");
            updates << QStringLiteral("%1 = excluded.%1").arg(names.last());
        }
        updates.removeFirst();
        m_key = names.first();
        m_select = QStringLiteral("SELECT %1 FROM %2").arg(names.join(QStringLiteral(", ")), table);
        m_upsert = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3) ON CONFLICT (%4) DO UPDATE SET %5")
                       .arg(table, names.join(QStringLiteral(", ")), marks.join(QStringLiteral(", ")), m_key,
                            updates.join(QStringLiteral(", ")));
    }

    // "SELECT ... FROM table", to be followed by a condition.
    [[nodiscard]] const QString &select() const { return m_select; }

    [[nodiscard]] Row read(const Statement &statement) const
    {
        Row row;
        int index = 0;
        for (const Column<Row> &column : m_columns) {
            std::visit([&](auto member) { row.*member = value(statement, index, row.*member); },
                       column.member);
            ++index;
        }
        return row;
    }

    // The row of the key, or one without values.
    template<class Key>
    [[nodiscard]] Row find(Connection &connection, const Key &key) const
    {
        return findBy(connection, m_key, key);
    }
    template<class... Keys>
    [[nodiscard]] Row findBy(Connection &connection, const QString &column, const Keys &...keys) const
    {
        Statement statement =
            connection.prepare(m_select + QStringLiteral(" WHERE ") + column + QStringLiteral(" = ?"));
        return statement.run(keys...) && statement.next() ? read(statement) : Row();
    }

    // All rows of "SELECT ... FROM table" and the condition.
    template<class... Values>
    [[nodiscard]] std::vector<Row> list(Connection &connection, const QString &condition,
                                        const Values &...values) const
    {
        std::vector<Row> rows;
        Statement statement = connection.prepare(m_select + QLatin1Char(' ') + condition);
        if (statement.run(values...)) {
            while (statement.next())
                rows.push_back(read(statement));
        }
        return rows;
    }

    // Adds the row or replaces the one with its key.
    [[nodiscard]] bool write(Connection &connection, const Row &row) const
    {
        Statement statement = connection.prepare(m_upsert);
        for (const Column<Row> &column : m_columns)
            std::visit([&](auto member) { bind(statement, row.*member); }, column.member);
        return statement.execute();
    }

private:
    template<class Value>
    static Value value(const Statement &statement, int index, const Value &)
    {
        if constexpr (std::is_same_v<Value, QString>)
            return statement.text(index);
        else if constexpr (std::is_same_v<Value, double>)
            return statement.real(index);
        else if constexpr (std::is_same_v<Value, qint64>)
            return statement.number(index);
        else
            return static_cast<Value>(statement.integer(index));
    }

    template<class Value>
    static void bind(Statement &statement, const Value &value)
    {
        if constexpr (std::is_same_v<Value, bool>)
            statement.bind(value ? 1 : 0);
        else
            statement.bind(value);
    }

    std::vector<Column<Row>> m_columns;
    QString m_key;
    QString m_select;
    QString m_upsert;
};
