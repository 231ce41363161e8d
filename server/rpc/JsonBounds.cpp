#include "JsonBounds.h"

QString JsonBounds::objection(const QByteArray &text) const
{
    if (text.size() > bytes)
        return QStringLiteral("the text is larger than %1 bytes").arg(bytes);
    int level = 0;
    int count = 0;
    bool inText = false;
    bool afterBackslash = false;
    for (const char c : text) {
        if (inText) {
            if (afterBackslash)
                afterBackslash = false;
            else if (c == '\\')
                afterBackslash = true;
            else if (c == '"')
                inText = false;
            continue;
        }
        switch (c) {
        case '"':
            inText = true;
            break;
        case '{':
        case '[':
            ++count;
            if (++level > depth)
                return QStringLiteral("nested deeper than %1 levels").arg(depth);
            break;
        case '}':
        case ']':
            --level;
            break;
        case ',':
            ++count;
            break;
        default:
            break;
        }
        if (count > values)
            return QStringLiteral("more than %1 values").arg(values);
    }
    return {};
}
