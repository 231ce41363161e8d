// The care of the database's file: is it whole, where is its copy, what is done with a damaged one. All
// before and beside the ordinary connections; a database on a server has an owner who does this.
#pragma once

#include <QString>

class Connection;

class DatabaseFile final {
public:
    DatabaseFile(const QString &path, const QString &backupPath);

    // Puts a whole file in place: this one, else its backup, else none. False when it can't be read for a
    // reason that is no damage (rights, a lock): then nothing was touched.
    [[nodiscard]] bool makeWhole() const;
    // Copies a file that was found whole, unless nothing was written since the last copy. Outside of a
    // transaction. The old backup stays until the new one is complete.
    bool backUp(Connection &connection) const;

private:
    enum class State { Whole, Damaged, Unreadable };
    [[nodiscard]] static State check(const QString &path);
    [[nodiscard]] bool setAside() const;
    [[nodiscard]] bool isBackedUp() const;

    QString m_path;
    QString m_backupPath;
};
