// Whether a file is one of several versions of the film whose folder it lies in, and which is shown first.
//
// "Film (2010)/Film (2010) - 1080p.mkv" and "Film (2010)/Film (2010) [Directors Cut].mkv" are versions of one
// film. Labels with a resolution come first, from the highest down, then the others by name. Pure; any
// thread.
#pragma once

#include <QString>

class MovieVersion final {
public:
    // name: of the file, without its suffix.
    [[nodiscard]] static MovieVersion parse(const QString &name, const QString &folder);

    [[nodiscard]] bool isValid() const { return m_valid; }
    [[nodiscard]] bool operator<(const MovieVersion &other) const;

    QString label;     // empty for a file that is named as its folder
    int resolution{0}; // lines; 0: the label tells none

private:
    bool m_valid{false};
};
