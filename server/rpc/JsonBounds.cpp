#include "JsonBounds.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <vector>

namespace {

// An object or an array that is open.
struct Level {
    bool isObject{false};
    bool awaitsKey{false};
    QSet<QByteArray> keys;
};

// A key as it is written, between its quotes: two spellings of one name are one key.
QByteArray nameOf(const QByteArray &written)
{
    if (!written.contains('\\'))
        return written;
    const QJsonArray read = QJsonDocument::fromJson("[\"" + written + "\"]").array();
    return read.isEmpty() ? written : read.first().toString().toUtf8();
}

} // namespace

QString JsonBounds::objection(const QByteArray &text) const
{
    if (text.size() > bytes)
        return QStringLiteral("the text is larger than %1 bytes").arg(bytes);
    std::vector<Level> levels;
    int count = 0;
    int textBegin = -1; // behind the quote of the string that is open
    bool afterBackslash = false;
    for (int at = 0; at < text.size(); ++at) {
        const char c = text.at(at);
        if (textBegin >= 0) {
            if (afterBackslash) {
                afterBackslash = false;
            } else if (c == '\\') {
                afterBackslash = true;
            } else if (c == '"') {
                if (!levels.empty() && levels.back().awaitsKey) {
                    Level &object = levels.back();
                    object.awaitsKey = false;
                    const QByteArray name = nameOf(text.mid(textBegin, at - textBegin));
                    if (object.keys.contains(name))
                        return QStringLiteral("a key stands twice in one object");
                    object.keys.insert(name);
                }
                textBegin = -1;
            }
            continue;
        }
        switch (c) {
        case '"':
            textBegin = at + 1;
            break;
        case '{':
        case '[':
            ++count;
            if (int(levels.size()) >= depth)
                return QStringLiteral("nested deeper than %1 levels").arg(depth);
            levels.push_back({c == '{', c == '{', {}});
            break;
        case '}':
        case ']':
            if (!levels.empty())
                levels.pop_back();
            break;
        case ',':
            ++count;
            if (!levels.empty())
                levels.back().awaitsKey = levels.back().isObject;
            break;
        default:
            break;
        }
        if (count > values)
            return QStringLiteral("more than %1 values").arg(values);
    }
    return {};
}
