#include "MimeAppsList_linux.h"

#include "WholeFile_linux.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace {

constexpr char kDefaults[] = "Default Applications";
constexpr char kRemoved[] = "Removed Associations";
// Groups that begin with "X-" are free for programs; their readers leave them alone.
constexpr char kMarks[] = "X-quorin-player-6 KelFile";
constexpr char kBackups[] = "X-quorin-player-6 KelFile.backup";
constexpr char kRemovedBackups[] = "X-quorin-player-6 KelFile.removed";

// A larger file is no list of programs.
constexpr qint64 kMaxSize = 16 << 20;

QStringList entriesOf(const std::string &value)
{
    return QString::fromStdString(value).split(QLatin1Char(';'), Qt::SkipEmptyParts);
}

std::string valueOf(const QStringList &entries)
{
    return entries.isEmpty() ? std::string()
                             : (entries.join(QLatin1Char(';')) + QLatin1Char(';')).toStdString();
}

} // namespace

MimeAppsList::MimeAppsList(QString path)
    : m_path(std::move(path))
{
}

QString MimeAppsList::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
           + QStringLiteral("/mimeapps.list");
}

bool MimeAppsList::load()
{
    QByteArray content;
    const QFileInfo facts(m_path);
    if (facts.exists()) {
        QFile file(m_path);
        // A pipe in its place would be waited for.
        if (!facts.isFile() || facts.size() > kMaxSize || !file.open(QIODevice::ReadOnly)) {
            qInfo().noquote() << "[FileAss] cannot read" << m_path << file.errorString();
            return false;
        }
        content = file.readAll();
    }
    m_textBefore = content.toStdString();
    m_text = IniText(IniText::Names::ExactCase, m_textBefore);
    return true;
}

bool MimeAppsList::save()
{
    const std::string text = m_text.text();
    if (text == m_textBefore)
        return true;
    // A list that we have made goes when nothing is left in it.
    const QFileInfo facts(m_path);
    if (text.empty() && !facts.isSymLink() && facts.permission(QFile::WriteOwner) && QFile::remove(m_path)) {
        m_textBefore.clear();
        return true;
    }
    const QString reason = WholeFile::write(m_path, text);
    if (reason.isEmpty())
        m_textBefore = text;
    else
        qInfo().noquote() << "[FileAss] cannot write" << m_path << reason;
    return reason.isEmpty();
}

void MimeAppsList::take(const QString &name, const QStringList &types, const QString &entry)
{
    QStringList all = list(kMarks, name);
    for (const QString &type : types) {
        takeType(type, entry);
        if (!all.contains(type))
            all << type;
    }
    m_text.setValue(kMarks, name.toStdString(), valueOf(all));
}

void MimeAppsList::giveBack(const QString &name, const QString &entry)
{
    const QStringList types = list(kMarks, name);
    m_text.removeValue(kMarks, name.toStdString());
    for (const QString &type : types) {
        if (!isNeeded(type))
            giveTypeBack(type, entry);
    }
    for (const char *group : {kMarks, kBackups, kRemovedBackups, kDefaults})
        m_text.removeSectionIfBlank(group);
}

bool MimeAppsList::isTaken(const QString &name, const QString &entry) const
{
    const QStringList types = list(kMarks, name);
    return std::any_of(types.begin(), types.end(),
                       [&](const QString &type) { return firstChoice(type) == entry; });
}

QString MimeAppsList::firstChoice(const QString &type) const
{
    return list(kDefaults, type).value(0);
}

QStringList MimeAppsList::list(const char *group, const QString &key) const
{
    return entriesOf(m_text.value(group, key.toStdString()).value_or(std::string()));
}

bool MimeAppsList::isNeeded(const QString &type) const
{
    const IniText::Keys marks = m_text.keys(kMarks);
    return std::any_of(marks.begin(), marks.end(),
                       [&](const auto &mark) { return entriesOf(mark.second).contains(type); });
}

void MimeAppsList::takeType(const QString &type, const QString &entry)
{
    const std::string key = type.toStdString();
    const std::string before = m_text.value(kDefaults, key).value_or(std::string());
    QStringList others = entriesOf(before);
    // Ours alone is nothing to come back to.
    const bool wasOurs = others.removeAll(entry) > 0;
    if (!m_text.value(kBackups, key))
        m_text.setValue(kBackups, key, wasOurs ? valueOf(others) : before);
    m_text.setValue(kDefaults, key, valueOf(QStringList{entry} + others));

    const auto removed = m_text.value(kRemoved, key);
    QStringList removedEntries = entriesOf(removed.value_or(std::string()));
    if (removedEntries.removeAll(entry) == 0)
        return;
    if (!m_text.value(kRemovedBackups, key))
        m_text.setValue(kRemovedBackups, key, *removed);
    m_text.setValue(kRemoved, key, valueOf(removedEntries));
}

void MimeAppsList::giveTypeBack(const QString &type, const QString &entry)
{
    const std::string key = type.toStdString();
    const auto give = [&](const char *group, const std::string &value) {
        if (value.empty())
            m_text.removeValue(group, key);
        else
            m_text.setValue(group, key, value);
    };
    if (firstChoice(type) == entry) {
        give(kDefaults, m_text.value(kBackups, key).value_or(std::string()));
    } else {
        // The user has chosen another since, and may have left ours behind it.
        QStringList chosen = list(kDefaults, type);
        if (chosen.removeAll(entry) > 0)
            give(kDefaults, valueOf(chosen));
    }
    if (const auto removed = m_text.value(kRemovedBackups, key))
        give(kRemoved, *removed);
    m_text.removeValue(kBackups, key);
    m_text.removeValue(kRemovedBackups, key);
}
