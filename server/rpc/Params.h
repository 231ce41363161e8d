// The parameters of one call after the checker let them pass: typed, clamped and complete.
//
// Asking for a key that the method's row does not name gives the default of its type.
#pragma once

#include "records/ListRequest.h"

#include <QHash>
#include <QLatin1String>
#include <QString>

class Params final {
public:
    [[nodiscard]] int integer(QLatin1String key) const { return m_integers.value(key); }
    [[nodiscard]] QString text(QLatin1String key) const { return m_texts.value(key); }
    [[nodiscard]] bool flag(QLatin1String key) const { return m_flags.value(key); }
    [[nodiscard]] const ListRequest &list() const { return m_list; }

    void setInteger(QLatin1String key, int value) { m_integers.insert(key, value); }
    void setText(QLatin1String key, const QString &value) { m_texts.insert(key, value); }
    void setFlag(QLatin1String key, bool value) { m_flags.insert(key, value); }
    [[nodiscard]] ListRequest &list() { return m_list; }

private:
    QHash<QLatin1String, int> m_integers;
    QHash<QLatin1String, QString> m_texts;
    QHash<QLatin1String, bool> m_flags;
    ListRequest m_list;
};
