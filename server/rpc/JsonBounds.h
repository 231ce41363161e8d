// Bounds on a JSON text before it is parsed: a small request must not become a large tree, nor a deep one.
// Nor may an object name a key twice: which of the two counts is anybody's guess, and Qt's parser never frees
// the first of them.
//
// Pure; any thread.
#pragma once

#include <QByteArray>
#include <QString>

struct JsonBounds {
    int bytes{0};
    int depth{0};  // of objects and arrays within each other
    int values{0}; // elements of all objects and arrays together

    // Empty for a text within the bounds, else what is wrong with it. Says nothing about its grammar.
    [[nodiscard]] QString objection(const QByteArray &text) const;
};
