// The languages by name and three-letter code.
#pragma once

#include <QString>
#include <QVector>

struct LanguageEntry {
    QString name;
    QString code;
};

namespace LanguageTable {

inline constexpr char English[] = "ENU";

// The list of the settings page, in its order and with its names.
[[nodiscard]] const QVector<LanguageEntry> &entries();

// The languages that the program's own texts exist in, English first; the names are those of entries() where
// it has the language.
[[nodiscard]] const QVector<LanguageEntry> &interfaceLanguages();

// Empty for a name or a code that neither list holds.
[[nodiscard]] QString codeOf(const QString &name);
[[nodiscard]] QString nameOf(const QString &code);

} // namespace LanguageTable
