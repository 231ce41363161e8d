// The numbered steps from an empty database to the present one. Each step is one transaction with the new
// number in it: after a failure or a kill the database has the last whole step and goes on from there.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class Connection;

// {text} and {real} stand for the types that are called differently in the two databases.
struct Migration {
    QString name;
    QStringList statements;
};

class Migrations final {
public:
    explicit Migrations(const QVector<Migration> &steps);

    // Outside of a transaction. False when a step failed or the database is of a later program; that one is
    // not touched.
    [[nodiscard]] bool apply(Connection &connection) const;
    // The number of steps that stand; 0 for an empty database, -1 where it cannot be read.
    [[nodiscard]] static int version(Connection &connection);

private:
    [[nodiscard]] static bool applyStep(Connection &connection, const Migration &step, int number);

    QVector<Migration> m_steps;
};
