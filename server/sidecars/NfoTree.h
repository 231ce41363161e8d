// The elements of an NFO file, read tolerantly: byte order marks, wrong encodings, several roots, bare
// ampersands, control characters and text behind the end are overlooked; where the file breaks off, what was
// read stays.
//
// Depth, number of elements and length of texts are bounded, and no entity is ever expanded from a definition
// in the file. Any thread.
#pragma once

#include <QMap>
#include <QString>
#include <QVector>

class NfoTree final {
public:
    struct Element {
        QString name; // lower case
        QMap<QString, QString> attributes;
        QString text; // trimmed, without that of its children
        QVector<Element> children;

        // The last child of the name that has a text, for of repeated tags the last one counts.
        [[nodiscard]] const Element *child(const QString &wanted) const;
        [[nodiscard]] QString value(const QString &wanted) const;
    };

    // data: at most 2 MB, else nothing is read.
    [[nodiscard]] static NfoTree read(const QByteArray &data);

    QVector<Element> roots;
    QString text; // what stands outside of all elements
};
