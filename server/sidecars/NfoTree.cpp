#include "NfoTree.h"

#include "TextDecoder.h"

#include <QDebug>
#include <QXmlStreamReader>

namespace {

constexpr int largestFile = 2 * 1024 * 1024;
constexpr int deepest = 32;
constexpr int mostElements = 20000;
constexpr int longestText = 64 * 1024;
constexpr int longestEntity = 10;
constexpr int longestDeclaration = 256;

// Entities that pages of the web know and XML doesn't. They are replaced before the file is read as XML, so
// that none is ever looked up in what the file itself defines.
struct EntityRow {
    const char *name;
    const char16_t *text;
};

constexpr EntityRow pageEntities[] = {
    {"nbsp", u" "},  {"eacute", u"é"}, {"egrave", u"è"}, {"agrave", u"à"}, {"ccedil", u"ç"}, {"auml", u"ä"},
    {"ouml", u"ö"},  {"uuml", u"ü"},   {"szlig", u"ß"},  {"ndash", u"–"},  {"mdash", u"—"},  {"hellip", u"…"},
    {"rsquo", u"’"}, {"lsquo", u"‘"},  {"ldquo", u"“"},  {"rdquo", u"”"},  {"copy", u"©"},   {"ntilde", u"ñ"},
};

constexpr const char *xmlEntities[] = {"amp", "lt", "gt", "quot", "apos"};

QByteArray declaredEncoding(const QByteArray &data)
{
    const QByteArray head = data.left(longestDeclaration);
    const int key = head.indexOf("encoding");
    const int end = head.indexOf("?>");
    if (key < 0 || end < key)
        return {};
    QByteArray value = head.mid(key + 8, end - key - 8).trimmed();
    value.replace('=', "").replace('"', "").replace('\'', "");
    return value.trimmed();
}

// The name between '&' and ';' at the position, or empty.
QString entityAt(const QString &text, int position)
{
    for (int i = position + 1; i < text.size() && i <= position + longestEntity; ++i) {
        const QChar character = text.at(i);
        if (character == QLatin1Char(';'))
            return text.mid(position + 1, i - position - 1);
        if (!character.isLetterOrNumber() && character != QLatin1Char('#'))
            return {};
    }
    return {};
}

// What stands for the '&' at the position; position moves behind what it replaces.
QString mendedEntity(const QString &text, int &position)
{
    const QString name = entityAt(text, position);
    if (name.startsWith(QLatin1Char('#')))
        return QStringLiteral("&");
    for (const char *known : xmlEntities)
        if (name == QLatin1String(known))
            return QStringLiteral("&");
    for (const EntityRow &row : pageEntities) {
        if (name != QLatin1String(row.name))
            continue;
        position += name.size() + 1;
        return QString::fromUtf16(row.text);
    }
    return QStringLiteral("&amp;");
}

// Where a declaration ends that starts at the position: "<?xml ... ?>", "<!DOCTYPE ... [ ... ]>".
int declarationEnd(const QString &text, int position)
{
    if (text.midRef(position, 5) == QLatin1String("<?xml")) {
        const int end = text.indexOf(QLatin1String("?>"), position);
        return end < 0 ? text.size() : end + 2;
    }
    if (text.midRef(position, 9).compare(QLatin1String("<!DOCTYPE"), Qt::CaseInsensitive) != 0)
        return position;
    const int end = text.indexOf(QLatin1Char('>'), position);
    if (end >= 0 && text.midRef(position, end - position).contains(QLatin1Char('['))) {
        const int close = text.indexOf(QLatin1String("]>"), position);
        return close < 0 ? text.size() : close + 2;
    }
    return end < 0 ? text.size() : end + 1;
}

// The text as a reader of XML takes it, below one root of our own.
QString mended(const QString &text)
{
    QString result = QStringLiteral("<nfo>");
    result.reserve(text.size() + 32);
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character == QLatin1Char('<')) {
            const int end = declarationEnd(text, i);
            if (end > i) {
                i = end - 1;
                continue;
            }
        }
        if (character == QLatin1Char('&'))
            result += mendedEntity(text, i);
        else if (character.unicode() < 0x20 && !character.isSpace())
            result += QLatin1Char(' ');
        else
            result += character;
    }
    result += QLatin1String("</nfo>");
    return result;
}

// Elements under way; they reach their parent when they end, or when the file does.
class Builder final {
public:
    void open(const QXmlStreamReader &reader)
    {
        NfoTree::Element element;
        element.name = reader.name().toString().toLower();
        for (const QXmlStreamAttribute &attribute : reader.attributes())
            element.attributes.insert(attribute.name().toString().toLower(), attribute.value().toString());
        m_open.append(element);
    }

    void add(QStringView text)
    {
        QString &target = m_open.last().text;
        target.append(text.left(qMin<qsizetype>(longestText - target.size(), text.size())).toString());
    }

    void close()
    {
        NfoTree::Element element = m_open.takeLast();
        element.text = element.text.trimmed();
        m_open.last().children.append(element);
    }

    NfoTree finish()
    {
        while (m_open.size() > 1)
            close();
        NfoTree tree;
        if (!m_open.isEmpty()) {
            tree.roots = m_open.first().children;
            tree.text = m_open.first().text;
        }
        return tree;
    }

    [[nodiscard]] int depth() const { return m_open.size(); }

private:
    QVector<NfoTree::Element> m_open;
};

} // namespace

const NfoTree::Element *NfoTree::Element::child(const QString &wanted) const
{
    for (int i = children.size() - 1; i >= 0; --i)
        if (children.at(i).name == wanted
            && (!children.at(i).text.isEmpty() || !children.at(i).children.isEmpty()))
            return &children.at(i);
    return nullptr;
}

QString NfoTree::Element::value(const QString &wanted) const
{
    const Element *found = child(wanted);
    return found ? found->text : QString();
}

NfoTree NfoTree::read(const QByteArray &data)
{
    if (data.size() > largestFile) {
        qInfo() << "[sidecars] an NFO of" << data.size() << "bytes is left out";
        return {};
    }
    QXmlStreamReader reader(mended(TextDecoder::decode(data, declaredEncoding(data))));
    reader.setNamespaceProcessing(false);
    Builder builder;
    int elements = 0;
    int skipped = 0; // depth below the deepest element that is kept
    while (!reader.atEnd() && elements < mostElements) {
        switch (reader.readNext()) {
        case QXmlStreamReader::StartElement:
            ++elements;
            if (builder.depth() >= deepest)
                ++skipped;
            else
                builder.open(reader);
            break;
        case QXmlStreamReader::Characters:
        case QXmlStreamReader::EntityReference:
            if (skipped == 0 && builder.depth() > 0)
                builder.add(reader.text());
            break;
        case QXmlStreamReader::EndElement:
            if (skipped > 0)
                --skipped;
            else if (builder.depth() > 1)
                builder.close();
            break;
        default:
            break;
        }
    }
    if (reader.hasError())
        qInfo() << "[sidecars] an NFO breaks off:" << reader.errorString();
    return builder.finish();
}
