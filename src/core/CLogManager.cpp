#include "CLogManager.h"

#include "ApplicationInfoManager.h"

#include <QDate>
#include <QFile>
#include <QTextStream>
#include <QTime>

CLogManager::CLogManager()
    : CLogManager(ApplicationInfoManager::instance()->logFile())
{
}

CLogManager::CLogManager(const QString &filePath)
    : logFilePath(filePath)
    , m_file(new QFile(filePath, this))
{
    applySizeLimit();
    if (m_file->open(QIODevice::Append | QIODevice::Text))
        writeText(QStringLiteral("-------------------------%1----------------------------")
                      .arg(QDate::currentDate().toString(QStringLiteral("yyyy-MM-dd"))));
}

CLogManager::~CLogManager() = default;

// Moves the newer half to the front piece by piece, since a log that grew without a restart may be larger
// than memory.
void CLogManager::applySizeLimit() const
{
    QFile file(logFilePath);
    if (!file.exists() || file.size() < SizeLimit || !file.open(QIODevice::ReadWrite))
        return;
    constexpr qint64 kPiece = 1 << 20;
    qint64 from = file.size() / 2;
    qint64 to = 0;
    for (;;) {
        if (!file.seek(from))
            return;
        const QByteArray piece = file.read(kPiece);
        if (piece.isEmpty())
            break;
        if (!file.seek(to) || file.write(piece) != piece.size())
            return;
        from += piece.size();
        to += piece.size();
    }
    file.resize(to);
}

void CLogManager::writeLine(const QString &level, const QString &message)
{
    writeText(QStringLiteral("[%1] %2 %3")
                  .arg(QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz")), level, message));
}

void CLogManager::writeText(const QString &text)
{
    if (!m_file->isOpen())
        return;
    QTextStream stream(m_file);
    stream.setCodec("UTF-8");
    stream << text << '\n';
}
