// The user's mimeapps.list: which program opens a type of files. Takes types for an entry and gives them
// back.
//
// What stood there before is kept in groups of our own in the same file, so that one write changes both: by
// name, for instance an extension, the types that were taken for it, and by type what its line said before.
// All else in the file stays as it is, down to the blank lines. Works on a copy in memory between load() and
// save(); not thread-safe.
#pragma once

#include "registry/IniText.h"

#include <QString>
#include <QStringList>

class MimeAppsList final {
public:
    explicit MimeAppsList(QString path = defaultPath());

    [[nodiscard]] static QString defaultPath();

    // False when there is a file that can't be read; no file is an empty list.
    [[nodiscard]] bool load();
    // Writes what has changed, in one step. False when that failed, and then the file is as it was.
    [[nodiscard]] bool save();

    // The entry becomes the first choice for these types. Taking twice keeps what stood there the first time.
    void take(const QString &name, const QStringList &types, const QString &entry);
    // Types that no other name needs get back what they had, but for those that open with another entry
    // since: those are the user's.
    void giveBack(const QString &name, const QString &entry);

    // Whether the name's types were taken, and at least one of them still opens with the entry.
    [[nodiscard]] bool isTaken(const QString &name, const QString &entry) const;
    // The first choice for a type; empty where the list names none.
    [[nodiscard]] QString firstChoice(const QString &type) const;

private:
    [[nodiscard]] QStringList list(const char *group, const QString &key) const;
    [[nodiscard]] bool isNeeded(const QString &type) const;
    void takeType(const QString &type, const QString &entry);
    void giveTypeBack(const QString &type, const QString &entry);

    QString m_path;
    std::string m_textBefore;
    IniText m_text{IniText::Names::ExactCase};
};
