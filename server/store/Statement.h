// One use of a prepared statement: run it, read its rows. The statement is given back at the end of the use,
// so that no reader holds an old state of the database open. Values are bound in the order of the question
// marks. Lives on the thread of its connection.
#pragma once

#include <QSqlQuery>
#include <QString>

#include <memory>

struct StatementCounters {
    qint64 statements{0};
    qint64 rows{0};
};

class Statement final {
public:
    // Without a query (what could not be prepared) every run fails. It is shared with those that are kept
    // prepared, which may let it go during the use.
    Statement(std::shared_ptr<QSqlQuery> query, StatementCounters *counters);
    ~Statement();
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    // False with a line in the log when the database refuses.
    template<class... Values>
    bool run(const Values &...values)
    {
        (bind(values), ...);
        return execute();
    }
    void bind(int value);
    void bind(qint64 value);
    void bind(double value);
    // A null text is stored as an empty one.
    void bind(const QString &value);
    bool execute();

    [[nodiscard]] bool next();
    [[nodiscard]] int integer(int column) const;
    [[nodiscard]] qint64 number(int column) const;
    [[nodiscard]] double real(int column) const;
    [[nodiscard]] QString text(int column) const;
    // Rows that the last run changed.
    [[nodiscard]] int changed() const;

private:
    const std::shared_ptr<QSqlQuery> m_query;
    StatementCounters *m_counters;
    int m_position{0};
};
