// The list of ids that comes as a text which is JSON itself: {"idFile": ["12", "13"]}.
//
// Pure; any thread.
#pragma once

#include <QString>
#include <QVector>

struct IdList {
    QVector<int> ids; // each once, in their order
    QString error;    // empty: the list is good
};

namespace IdListDocument {

[[nodiscard]] IdList parse(const QString &text);

} // namespace IdListDocument
