// What the arguments of a start ask for. Pure: built from the argument list, program path first.
#pragma once

#include <QStringList>

class CommandLine final {
public:
    enum class Maintenance { None, Install, Uninstall, FullUninstall };

    // Bits of startFlags().
    static constexpr int FullScreenFlag = 1;
    static constexpr int CloseAtEndFlag = 16;

    explicit CommandLine(const QStringList &arguments);

    // The list less what only marks a start by the installer, and less "--library FOLDER".
    [[nodiscard]] const QStringList &arguments() const { return m_arguments; }

    [[nodiscard]] Maintenance maintenance() const;

    // Whether the user joins the improvement plan; means something in an install run only.
    [[nodiscard]] bool joinsPlan() const;

    // The folder that is to join the media library; empty without one.
    [[nodiscard]] const QString &libraryFolder() const { return m_libraryFolder; }

    [[nodiscard]] bool hasFileArgument() const { return m_arguments.size() >= 2; }
    // The first argument after the program path; empty without one.
    [[nodiscard]] QString fileArgument() const { return m_arguments.value(1); }

    // The words are looked for inside every entry, the program path and the file included, in any case.
    [[nodiscard]] int startFlags() const;

private:
    [[nodiscard]] bool anyContains(const char *word) const;

    QStringList m_arguments;
    QString m_libraryFolder;
};
