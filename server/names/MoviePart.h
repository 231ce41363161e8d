// Which part of a film that was cut into several files: "Film CD1", "Film.part2", "Film disc b".
//
// A part has meaning only beside another with the same stem; whoever groups them asks for that. Pure; any
// thread.
#pragma once

#include <QString>

class MoviePart final {
public:
    // name: without the suffix of the file, or of a folder.
    [[nodiscard]] static MoviePart parse(const QString &name);

    [[nodiscard]] bool isValid() const { return number > 0; }

    QString stem;  // the name without the mark; equal for all parts. Empty where the mark is all
    int number{0}; // counted from 1; 0: no part
};
