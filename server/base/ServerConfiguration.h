// What stands in server.ini. Everything has a default, so a missing file is an ordinary one.
#pragma once

#include <QString>

struct ServerConfiguration {
    // [database]: driver=QSQLITE (the default) or QPSQL with host, port, name, user, password.
    QString databaseDriver{QStringLiteral("QSQLITE")};
    QString databaseHost;
    int databasePort{5432};
    QString databaseName;
    QString databaseUser;
    QString databasePassword;

    // [metadata]: endpoint=https://.../3, images=https://.../t/p/, key=. Without endpoint and key no request
    // leaves the machine.
    QString metadataEndpoint;
    QString metadataImages;
    QString metadataKey;

    [[nodiscard]] bool hasMetadata() const { return !metadataEndpoint.isEmpty() && !metadataKey.isEmpty(); }

    // Reads the file; what it cannot make sense of is logged and keeps its default.
    [[nodiscard]] static ServerConfiguration read(const QString &path);
};
