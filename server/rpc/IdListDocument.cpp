#include "IdListDocument.h"

#include "JsonBounds.h"
#include "Keys.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace IdListDocument {

namespace {

constexpr JsonBounds bounds{16 * 1024 * 1024, 4, 1000000};

IdList refused(const QString &reason)
{
    return {{}, QStringLiteral("key \"idFile\" %1").arg(reason)};
}

} // namespace

IdList parse(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const QString objection = bounds.objection(bytes);
    if (!objection.isEmpty())
        return refused(QStringLiteral("is refused: ") + objection);
    const QJsonDocument document = QJsonDocument::fromJson(bytes);
    if (!document.isObject())
        return refused(QStringLiteral("must hold a JSON object"));
    const QJsonValue list = document.object().value(Keys::idFile);
    if (!list.isArray())
        return refused(QStringLiteral("must hold an array \"idFile\""));

    IdList result;
    QSet<int> seen;
    const QJsonArray array = list.toArray();
    for (const QJsonValue &element : array) {
        bool good = false;
        const QString number =
            element.isString() ? element.toString() : QString::number(element.toDouble(-1), 'g', 15);
        const int id = number.toInt(&good);
        if (!good || id < 0 || !(element.isString() || element.isDouble()))
            return refused(QStringLiteral("holds something that is no id"));
        if (!seen.contains(id)) {
            seen.insert(id);
            result.ids.append(id);
        }
    }
    return result;
}

} // namespace IdListDocument
