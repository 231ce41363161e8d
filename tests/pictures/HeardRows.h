// The rows that a manager told of. QSignalSpy would listen on the lanes' own threads.
#pragma once

#include "pictures/PictureManager.h"

#include <QList>
#include <QObject>

class HeardRows final {
public:
    HeardRows(PictureManager &manager, void (PictureManager::*signal)(int))
    {
        QObject::connect(&manager, signal, &m_context, [this](int row) { m_rows.append(row); });
    }

    [[nodiscard]] int count() const { return m_rows.size(); }
    [[nodiscard]] int at(int index) const { return m_rows.at(index); }

private:
    QObject m_context;
    QList<int> m_rows;
};
