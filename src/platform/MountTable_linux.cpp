#include "MountTable_linux.h"

#include <QFile>
#include <QList>

namespace {

constexpr char kTable[] = "/proc/self/mountinfo";

// Fields of a line; any number of optional ones follow, up to a lone dash.
constexpr int kDeviceField = 2;
constexpr int kMountPointField = 4;
constexpr int kFirstOptionalField = 6;

// Blanks and the like stand as a backslash and three octal digits.
QString unescaped(const QByteArray &field)
{
    constexpr int kDigits = 3;
    QByteArray text;
    text.reserve(field.size());
    for (int at = 0; at < field.size(); ++at) {
        bool ok = false;
        const int code = field.at(at) == '\\' ? field.mid(at + 1, kDigits).toInt(&ok, 8) : 0;
        if (ok) {
            text += char(code);
            at += kDigits;
        } else {
            text += field.at(at);
        }
    }
    return QString::fromLocal8Bit(text);
}

bool isAtOrBelow(const QString &path, const QString &folder)
{
    const QLatin1Char slash('/');
    return path.startsWith(folder)
           && (path.size() == folder.size() || folder.endsWith(slash) || path.at(folder.size()) == slash);
}

} // namespace

MountTable MountTable::current()
{
    QFile table(QString::fromLatin1(kTable));
    // The kernel gives no size for it: it is read to its end.
    return MountTable(table.open(QIODevice::ReadOnly) ? table.readAll() : QByteArray());
}

MountTable::MountTable(const QByteArray &text)
{
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const QList<QByteArray> fields = line.split(' ');
        const int dash = fields.indexOf("-", kFirstOptionalField);
        if (dash < 0 || dash + 2 >= fields.size())
            continue;
        m_entries << Entry{unescaped(fields.at(kMountPointField)),
                           QString::fromLatin1(fields.at(kDeviceField)),
                           QString::fromLatin1(fields.at(dash + 1)), unescaped(fields.at(dash + 2))};
    }
}

std::optional<MountTable::Entry> MountTable::entryOf(const QString &path) const
{
    const Entry *best = nullptr;
    for (const Entry &entry : m_entries) {
        if (isAtOrBelow(path, entry.mountPoint)
            && (best == nullptr || entry.mountPoint.size() >= best->mountPoint.size()))
            best = &entry;
    }
    return best != nullptr ? std::optional<Entry>(*best) : std::nullopt;
}

std::optional<MountTable::Entry> MountTable::entryOfSource(const QString &source) const
{
    for (const Entry &entry : m_entries) {
        if (entry.source == source)
            return entry;
    }
    return std::nullopt;
}
