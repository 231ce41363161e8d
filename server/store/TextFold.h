// Texts as they are compared: without regard to case and to the marks on letters, in any script.
#pragma once

#include <QString>

namespace TextFold {

// "Amélie" and "AMELIE" give the same.
[[nodiscard]] QString folded(const QString &text);
// The same without spaces around it; what must be one thing under several spellings of its case. Marks on
// letters count.
[[nodiscard]] QString nameKey(const QString &name);
// A pattern for LIKE ... ESCAPE '\' that finds the text anywhere; its own wildcards mean themselves.
[[nodiscard]] QString containing(const QString &text);

} // namespace TextFold
