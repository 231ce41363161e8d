#include "AnswerCache.h"

#include <QCryptographicHash>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr char kSuffix[] = ".answer";
constexpr qint64 kLongestFirstLine = 32;

QFileInfoList answersIn(const QString &folder)
{
    return QDir(folder).entryInfoList({QLatin1Char('*') + QLatin1String(kSuffix)}, QDir::Files, QDir::Time);
}

} // namespace

AnswerCache::AnswerCache(const QString &folder, Limits limits)
    : m_folder(folder)
    , m_limits(limits)
{
}

QString AnswerCache::pathOf(const QByteArray &question) const
{
    const QByteArray hash = QCryptographicHash::hash(question, QCryptographicHash::Sha256).toHex();
    return m_folder + QLatin1Char('/') + QString::fromLatin1(hash) + QLatin1String(kSuffix);
}

QByteArray AnswerCache::find(const QByteArray &question, qint64 nowMs) const
{
    QFile file(pathOf(question));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    bool isNumber = false;
    const qint64 keptMs = file.readLine(kLongestFirstLine).trimmed().toLongLong(&isNumber);
    // A moment in the future tells of a clock that was set back: its age can't be known.
    if (!isNumber || keptMs > nowMs || nowMs - keptMs > m_limits.ageMs)
        return {};
    return file.readAll();
}

void AnswerCache::keep(const QByteArray &question, const QByteArray &answer, qint64 nowMs)
{
    std::lock_guard lock(m_mutex);
    const QString path = pathOf(question);
    const qint64 before = QFileInfo(path).size();
    QSaveFile file(path);
    const QByteArray content = QByteArray::number(nowMs) + '\n' + answer;
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit()) {
        qWarning().noquote() << "[metadata] an answer can't be kept:" << file.errorString();
        return;
    }
    if (m_bytes >= 0)
        m_bytes += content.size() - before;
    if (m_bytes < 0 || m_bytes > m_limits.bytes)
        makeRoom();
}

void AnswerCache::makeRoom()
{
    // Some more than the limit asks for, so that not every further answer walks the folder.
    const qint64 wanted = m_limits.bytes / 5 * 4;
    m_bytes = 0;
    qint64 kept = 0;
    const QFileInfoList newestFirst = answersIn(m_folder);
    for (const QFileInfo &info : newestFirst)
        m_bytes += info.size();
    if (m_bytes <= m_limits.bytes)
        return;
    for (const QFileInfo &info : newestFirst) {
        if (kept + info.size() <= wanted || !QFile::remove(info.filePath()))
            kept += info.size();
    }
    m_bytes = kept;
}
