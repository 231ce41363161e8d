// Folders of a user and of a machine for the tests of desktop entries; the process looks there while it
// lives.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <utility>
#include <vector>

class DesktopSandbox final {
public:
    DesktopSandbox();
    ~DesktopSandbox();
    DesktopSandbox(const DesktopSandbox &) = delete;
    DesktopSandbox &operator=(const DesktopSandbox &) = delete;

    // Below the sandbox: "config", "data" and "machine" stand for the folders of the desktop.
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    void write(const QString &name, const QByteArray &content) const;
    [[nodiscard]] QByteArray content(const QString &name) const;
    [[nodiscard]] bool has(const QString &name) const;

    // "config/mimeapps.list".
    [[nodiscard]] static QString listName();

private:
    QTemporaryDir m_folder;
    std::vector<std::pair<QByteArray, QByteArray>> m_before;
};
