// The methods of the protocol as rows: name, keys, handler. The dispatcher looks up in it and knows no method
// itself.
//
// Filled before the first request and read-only from then on, so that any thread may look up.
#pragma once

#include "ParameterChecker.h"
#include "RpcReply.h"

#include <QHash>
#include <QStringList>

#include <functional>

using MethodHandler = std::function<RpcReply(const Params &)>;

struct MethodRow {
    QLatin1String name;
    QVector<ParamRow> params;
    MethodHandler handler; // any thread, several at once
};

class MethodTable final {
public:
    void add(const QVector<MethodRow> &rows);
    [[nodiscard]] const MethodRow *find(const QString &name) const; // null for an unknown one
    [[nodiscard]] QStringList names() const;                        // sorted

private:
    QHash<QString, MethodRow> m_rows;
};
