#include "ZipEntryName.h"

#include <QStringList>
#include <QTextCodec>

namespace {

constexpr int kMaximumLength = 1024;
constexpr int kMibUtf8 = 106;

// Besides these, no control character. A colon stands behind a drive's letter or before a hidden stream.
constexpr char kForbidden[] = "\\:<>\"|?*";

// Names that Windows gives to devices, with any extension; COM and LPT take a digit.
constexpr const char *kDevices[] = {"con", "prn", "aux", "nul", "conin$", "conout$"};
constexpr const char *kNumberedDevices[] = {"com", "lpt"};

bool isDevice(const QString &part)
{
    const QString base = part.section(QLatin1Char('.'), 0, 0).trimmed().toLower();
    for (const char *device : kDevices) {
        if (base == QLatin1String(device))
            return true;
    }
    for (const char *device : kNumberedDevices) {
        if (base.size() == 4 && base.startsWith(QLatin1String(device)) && base.at(3).isDigit())
            return true;
    }
    return false;
}

bool hasForbidden(const QString &text)
{
    for (const QChar c : text) {
        if (c < QLatin1Char(' ') || c == QChar(0x7f) || c == QChar::ReplacementCharacter
            || QLatin1String(kForbidden).contains(c))
            return true;
    }
    return false;
}

QString decoded(const QByteArray &raw)
{
    QTextCodec::ConverterState state;
    const QString text = QTextCodec::codecForMib(kMibUtf8)->toUnicode(raw.constData(), raw.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 ? text : QString::fromLatin1(raw);
}

} // namespace

ZipEntryName::ZipEntryName(const QByteArray &raw)
    : m_path(decoded(raw))
    , m_isFolder(m_path.endsWith(QLatin1Char('/')))
{
    if (m_isFolder)
        m_path.chop(1);
    m_problem = judge();
}

QString ZipEntryName::judge() const
{
    if (m_path.isEmpty() || m_path.size() > kMaximumLength)
        return QStringLiteral("its name is empty or too long");
    if (hasForbidden(m_path))
        return QStringLiteral("its name holds a character that no file name may have");
    const QStringList parts = m_path.split(QLatin1Char('/'));
    for (const QString &part : parts) {
        // The first of an absolute path is empty.
        if (part.isEmpty() || part == QLatin1String(".") || part == QLatin1String(".."))
            return QStringLiteral("its path may leave the folder");
        // Windows drops these, and the name would be another.
        if (part.endsWith(QLatin1Char('.')) || part.endsWith(QLatin1Char(' ')) || isDevice(part))
            return QStringLiteral("its name stands for something else on some systems");
    }
    return {};
}

QString ZipEntryName::forLog() const
{
    QString text = m_path.left(kMaximumLength);
    for (QChar &c : text) {
        if (!c.isPrint())
            c = QLatin1Char('?');
    }
    return text;
}
