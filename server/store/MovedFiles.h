// Which of the files that have come are which of those that were lost, among files that look the same: one
// size, one time, one suffix. Pure functions.
//
// One that was lost and one that has come are the same file. Where there are more, their names tell them
// apart, and then what stands in them. What neither tells apart stays unknown: a file that is taken for new
// is better than a file with another one's record.
#pragma once

#include "FileTable.h"

#include <QVector>

class MovedFiles final {
public:
    // Files of one look beyond this number are not told apart, so that a library of files that are all alike
    // costs no more than others.
    static constexpr int kMost = 500;
    // What a row's content was read from. A name is no witness against itself.
    enum class Witness { File, Name };
    // How much it says that two files have one look.
    enum class Look {
        Rare,   // no other file is known to have it
        Shared, // others have it, so that what a file holds must not speak against it
        Told    // the files of this look were told apart by other means; the look itself says nothing
    };
    struct Found {
        // The rows of the places that the file was moved through, oldest first.
        QVector<FileRow> places;
        // Its index among those that have come.
        int comer;
    };

    explicit MovedFiles(Witness witness)
        : m_witness(witness)
    {
    }

    // Rows with their content, but for one and one of a rare look. A comer that has a row was made at
    // FileRow::added, and is a copy of its own where the lost file was still seen then.
    [[nodiscard]] QVector<Found> find(const QVector<FileRow> &lost, const QVector<FileRow> &comers,
                                      Look look) const;

private:
    struct Group {
        QVector<FileRow> lost;
        QVector<int> comers;
    };

    [[nodiscard]] bool isSame(const QVector<FileRow> &places, const FileRow &comer) const;

    Witness m_witness;
};
