#include "MoviePart.h"

#include "NameText.h"

namespace {

constexpr const char *marks[] = {"cd", "dvd", "part", "pt", "disc", "disk"};
constexpr int longestNumber = 2;

struct Place {
    int end{-1};
    int number{0};
};

// The mark and its number at the start of a word: "cd1", "part 2", "disc-b".
Place markAt(const QString &folded, int position)
{
    for (const char *mark : marks) {
        const QLatin1String text(mark);
        if (!folded.midRef(position).startsWith(text))
            continue;
        const int start = NameText::skipSeparators(folded, position + text.size(), 1);
        if (start >= folded.size())
            continue;
        const NameText::Number number = NameText::numberAt(folded, start, longestNumber);
        if (number.isValid() && number.value > 0 && NameText::isBoundary(folded, start + number.digits))
            return {start + number.digits, number.value};
        const int letter = folded.at(start).unicode() - 'a';
        if (letter >= 0 && letter < 4 && NameText::isBoundary(folded, start + 1))
            return {start + 1, letter + 1};
    }
    return {};
}

} // namespace

MoviePart MoviePart::parse(const QString &name)
{
    MoviePart result;
    const QString folded = NameText::folded(name);
    for (const NameText::Word &word : NameText::words(folded)) {
        const Place place = markAt(folded, word.start);
        if (place.number == 0)
            continue;
        // The last mark counts: "Part of Me part 2".
        QString before = name.left(word.start);
        while (!before.isEmpty()
               && (NameText::isSeparator(before.at(before.size() - 1)) || before.endsWith(QLatin1Char('('))
                   || before.endsWith(QLatin1Char('['))))
            before.chop(1);
        QString behind = name.mid(place.end);
        while (!behind.isEmpty() && (behind.at(0) == QLatin1Char(')') || behind.at(0) == QLatin1Char(']')))
            behind.remove(0, 1);
        result.stem = before + behind;
        result.number = place.number;
    }
    return result;
}
