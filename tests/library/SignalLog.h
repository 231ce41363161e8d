// Writes down every signal of the library in the order in which this thread sees them: "sig_name argument
// ...".
#pragma once

#include "library/LibrarySignals.h"

#include <QStringList>

class SignalLog final : public QObject {
    Q_OBJECT
public:
    void follow(LibrarySignals &notices);
    [[nodiscard]] QStringList lines() const { return m_lines; }
    void clear() { m_lines.clear(); }

private:
    QStringList m_lines;
};
