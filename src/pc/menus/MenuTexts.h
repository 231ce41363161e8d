// Texts of menu entries that are put together from what a source tells.
#pragma once

#include <QString>

namespace MenuTexts {

// chapter counts from 1.
[[nodiscard]] QString chapter(int chapter);
// A track's name, its language where it has none, else a word for both missing. language is a code of two or
// three letters or a name.
[[nodiscard]] QString track(const QString &name, const QString &language);
// As a menu shows it: an ampersand of the source marks no key.
[[nodiscard]] QString shown(const QString &text, const QString &note = {});

} // namespace MenuTexts
