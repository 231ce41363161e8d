// How a connection to the database is opened. Times and names as in server.ini.
#pragma once

#include <QString>

struct ConnectionSettings {
    QString driver{QStringLiteral("QSQLITE")};
    QString name; // the file, or the database of a server
    QString host;
    int port{0};
    QString user;
    QString password;

    [[nodiscard]] bool isFile() const { return driver == QLatin1String("QSQLITE"); }
};
