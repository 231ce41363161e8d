// Characters and words of file and folder names.
//
// A name may hold anything: control characters, marks of writing direction, halves of surrogate pairs,
// thousands of characters. Every function takes time in proportion to the length. All are pure and may be
// called from any thread.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace NameText {

// Names are cut here; no file system holds longer ones.
constexpr int maximumLength = 4096;

// A run of characters without separators or brackets.
struct Word {
    int start{0};
    int length{0};

    [[nodiscard]] int end() const { return start + length; }
};

struct Number {
    int value{0};
    int digits{0}; // 0: there is no number, or it has more digits than asked for

    [[nodiscard]] bool isValid() const { return digits > 0; }
};

// Space of any kind, dot, underscore, hyphen or dash.
[[nodiscard]] bool isSeparator(QChar character);
[[nodiscard]] bool isBracket(QChar character);
[[nodiscard]] bool isDigit(QChar character); // 0 to 9 only
// Neither a letter nor a digit stands at the position, or the text ends there.
[[nodiscard]] bool isBoundary(const QString &text, int position);

// Lower case, character by character: positions stay the same.
[[nodiscard]] QString folded(const QString &text);
// Control characters become spaces, invisible marks and halves of surrogate pairs are left out.
[[nodiscard]] QString sanitized(const QString &name);

[[nodiscard]] QVector<Word> words(const QString &text);
// The number that starts at the position, of at most nine digits.
[[nodiscard]] Number numberAt(const QString &text, int position, int maximumDigits);
// The position behind at most maximum separators.
[[nodiscard]] int skipSeparators(const QString &text, int position, int maximum = 3);
[[nodiscard]] bool startsWithAt(const QString &text, int position, const QString &part);

// A title as people write it: dots and underscores that stand for spaces become spaces, letters with dots
// between them stay together ("S.W.A.T."), what hangs over at both ends goes.
[[nodiscard]] QString title(const QString &text);

// What is left of a title to compare it by: letters and digits in lower case, one space between words.
[[nodiscard]] QString comparable(const QString &text);

// The file name without the part behind its last dot, where that part is short enough to be a suffix.
[[nodiscard]] QString withoutSuffix(const QString &fileName);

} // namespace NameText
