#include "ServerLog.h"

#include <QDateTime>

namespace {

// Guards the receiver: a message may be under way in another thread while the log goes.
std::mutex &receiverMutex()
{
    static std::mutex mutex;
    return mutex;
}

ServerLog *&receiver()
{
    static ServerLog *log = nullptr;
    return log;
}

void handleMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    std::lock_guard lock(receiverMutex());
    if (ServerLog *log = receiver())
        log->write(type, text);
}

char letterOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return 'D';
    case QtInfoMsg:
        return 'I';
    case QtWarningMsg:
        return 'W';
    case QtCriticalMsg:
        return 'E';
    case QtFatalMsg:
        return 'F';
    }
    return '?';
}

bool breaksLines(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

QString spelt(QChar character)
{
    switch (character.unicode()) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\u{%1}").arg(character.unicode(), 0, 16);
    }
}

} // namespace

ServerLog::ServerLog(const QString &path, qint64 limit)
    : m_file(path)
    , m_limit(limit)
{
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Append))
        m_size = m_file.size();
}

ServerLog::~ServerLog()
{
    if (!m_installed)
        return;
    {
        std::lock_guard lock(receiverMutex());
        receiver() = nullptr;
    }
    qInstallMessageHandler(m_previous);
}

bool ServerLog::isOpen() const
{
    std::lock_guard lock(m_mutex);
    return m_file.isOpen();
}

void ServerLog::install()
{
    {
        std::lock_guard lock(receiverMutex());
        receiver() = this;
    }
    m_previous = qInstallMessageHandler(handleMessage);
    m_installed = true;
}

void ServerLog::write(QtMsgType type, const QString &text)
{
    const QString line = QStringLiteral("%1 %2 %3\n")
                             .arg(QDateTime::currentDateTime().toString(Qt::ISODateWithMs))
                             .arg(QLatin1Char(letterOf(type)))
                             .arg(escaped(text.left(LongestLine)));
    const QByteArray bytes = line.toUtf8();
    std::lock_guard lock(m_mutex);
    if (m_size > 0 && m_size + bytes.size() > m_limit)
        rotate();
    if (!m_file.isOpen())
        return;
    const qint64 written = m_file.write(bytes);
    m_file.flush();
    m_size += qMax<qint64>(written, 0);
}

void ServerLog::rotate()
{
    const QString older = m_file.fileName() + QStringLiteral(".1");
    const QString current = m_file.fileName();
    m_file.close();
    QFile::remove(older);
    // Where it cannot be moved away it is begun anew: the limit counts more than old lines.
    const bool moved = QFile::rename(current, older);
    const QIODevice::OpenMode mode =
        moved ? QIODevice::WriteOnly | QIODevice::Append : QIODevice::WriteOnly | QIODevice::Truncate;
    m_size = 0;
    if (m_file.open(mode))
        m_size = m_file.size();
}

QString ServerLog::escaped(const QString &text)
{
    QString line;
    line.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const bool pair =
            character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (pair) {
            line += character;
            line += text.at(++i);
        } else if (breaksLines(character)) {
            line += spelt(character);
        } else {
            line += character;
        }
    }
    return line;
}
