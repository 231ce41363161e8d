// What `cmake --install` makes of this build, in a temporary folder that goes with the object.
#pragma once

#include <QString>
#include <QTemporaryDir>

class InstalledTree final {
public:
    // Program: the program and what it needs beside itself. Desktop: all that tells a desktop of it.
    enum class Component { All, Program, Desktop };

    explicit InstalledTree(Component component = Component::All);

    // False when installing failed; the reason is then in message().
    [[nodiscard]] bool isValid() const { return m_message.isNull(); }
    [[nodiscard]] QString message() const { return m_message; }

    [[nodiscard]] QString path() const { return m_folder.filePath(QStringLiteral("installed tree")); }
    [[nodiscard]] QString filePath(const QString &name) const { return path() + QLatin1Char('/') + name; }
    // The command that a user types.
    [[nodiscard]] QString command() const { return filePath(QStringLiteral("bin/quorin-player")); }

private:
    QTemporaryDir m_folder;
    QString m_message;
};
