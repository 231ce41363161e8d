// The name of an archive's entry, judged before anything is written. Values only, any thread.
#pragma once

#include <QByteArray>
#include <QString>

class ZipEntryName final {
public:
    // raw: the bytes of the name as the archive has them. They count as UTF-8, or as Latin-1 where they are
    // none.
    explicit ZipEntryName(const QByteArray &raw);

    // Empty when the name is a relative path that stays below the folder on every system; else why it does
    // not, in words for a log.
    [[nodiscard]] QString problem() const { return m_problem; }
    [[nodiscard]] bool isFolder() const { return m_isFolder; }
    // Parts joined by '/', without one at the end.
    [[nodiscard]] QString path() const { return m_path; }
    // Equal for names that one and the same file answers to where case does not count.
    [[nodiscard]] QString key() const { return m_path.toCaseFolded(); }
    // Fit for a log line, whatever the name holds.
    [[nodiscard]] QString forLog() const;

private:
    [[nodiscard]] QString judge() const;

    QString m_path;
    bool m_isFolder{false};
    QString m_problem;
};
