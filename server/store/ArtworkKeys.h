// Which pictures the records in the database name.
#pragma once

#include "IArtworkKeys.h"

class Database;

class ArtworkKeys final : public IArtworkKeys {
public:
    explicit ArtworkKeys(const Database &database)
        : m_database(database)
    {
    }

    [[nodiscard]] bool isNamed(const QString &key) const override;

    // The question for the database, with the key once for each place that may name it.
    [[nodiscard]] static const QString &question();

private:
    const Database &m_database;
};
