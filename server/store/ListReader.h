// Reads parts of lists: finds the order of a list, in memory where it is known, and then the records of the
// part by their keys. Any thread.
#pragma once

#include "Counters.h"
#include "Database.h"
#include "ListOrders.h"
#include "RowTable.h"

#include "records/ListRequest.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

// A list before it is sorted and restricted.
struct ListSource {
    QString name;
    QString tables;     // what stands behind FROM
    QString condition;  // what belongs to the list, with question marks for the values
    QStringList values; // numbers as text: the columns they are compared with are numbers
    QString id{QStringLiteral("id")};
    QVector<Counters::Area> areas;     // whose changes change the list
    QMap<SortMethod, QString> columns; // the method of others is the title's
    QString ties{QStringLiteral("sort_title, id")};
};

class ListReader final {
public:
    explicit ListReader(const Database &database);

    [[nodiscard]] ListOrders::Ids ids(const ListSource &source, const ListRequest &request) const;

    template<class Record>
    [[nodiscard]] Page<Record> page(const ListSource &source, const ListRequest &request,
                                    const RowTable<Record> &table, int Record::*id) const
    {
        const ListOrders::Ids all = ids(source, request);
        Page<Record> page;
        page.total = all->size();
        const int start = qBound(0, request.start, all->size());
        const int end = qBound(start, request.end, all->size());
        page.rows = records(all->mid(start, end - start), table, id);
        return page;
    }

    // In the order of the ids; those that are gone meanwhile are left out.
    template<class Record>
    [[nodiscard]] QVector<Record> records(const QVector<int> &wanted, const RowTable<Record> &table,
                                          int Record::*id) const
    {
        QVector<Record> rows;
        rows.reserve(wanted.size());
        for (int start = 0; start < wanted.size();) {
            const int count = wanted.size() - start < kChunk ? 1 : kChunk;
            QHash<int, Record> chunk;
            readChunk(wanted, start, count, table, id, &chunk);
            for (int index = start; index < start + count; ++index) {
                const auto found = chunk.constFind(wanted.at(index));
                if (found != chunk.constEnd())
                    rows << found.value();
            }
            start += count;
        }
        return rows;
    }

private:
    // Long parts are read by so many keys at a time.
    static constexpr int kChunk = 64;

    [[nodiscard]] static QString keyCondition(int count);

    template<class Record>
    void readChunk(const QVector<int> &wanted, int start, int count, const RowTable<Record> &table,
                   int Record::*id, QHash<int, Record> *chunk) const
    {
        Statement statement = m_database.reader().prepare(table.select() + keyCondition(count));
        for (int index = start; index < start + count; ++index)
            statement.bind(wanted.at(index));
        if (!statement.execute())
            return;
        while (statement.next()) {
            Record record = table.read(statement);
            const int key = record.*id;
            chunk->insert(key, std::move(record));
        }
    }

    const Database &m_database;
    mutable ListOrders m_orders;
};
