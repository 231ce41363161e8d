#include "DriveLetters.h"

#include "DiscLabel.h"
#include "MachineDrives.h"

#include <QDebug>
#include <QFileInfo>
#include <QStringList>

namespace {

constexpr char kEnvironment[] = "QUORIN_DRIVES";

QChar asLetter(QChar character)
{
    const QChar upper = character.toUpper();
    return upper >= QLatin1Char('A') && upper <= QLatin1Char('Z') ? upper : QChar();
}

} // namespace

DriveLetters *DriveLetters::instance()
{
    static DriveLetters *const table = [] {
        auto *made = new DriveLetters;
        made->bindAll(qEnvironmentVariable(kEnvironment));
        return made;
    }();
    return table;
}

QVector<Drive> DriveLetters::drives() const
{
    QMap<QChar, Drive> byLetter;
    for (const Drive &drive : MachineDrives::list())
        byLetter.insert(drive.letter, drive);
    std::lock_guard<std::mutex> lock(m_mutex);
    for (auto it = m_bound.cbegin(); it != m_bound.cend(); ++it)
        byLetter.insert(it.key(), Drive{it.key(), Drive::Optical, it.value(), true});
    return byLetter.values().toVector();
}

std::optional<Drive> DriveLetters::drive(QChar letter) const
{
    const QChar wanted = asLetter(letter);
    const QVector<Drive> all = drives();
    for (const Drive &drive : all) {
        if (drive.letter == wanted)
            return drive;
    }
    return std::nullopt;
}

bool DriveLetters::bind(QChar letter, const QString &path)
{
    const QChar known = asLetter(letter);
    const QFileInfo target(path);
    if (known.isNull() || path.isEmpty() || !target.exists())
        return false;
    std::lock_guard<std::mutex> lock(m_mutex);
    m_bound.insert(known, target.absoluteFilePath());
    return true;
}

void DriveLetters::unbind(QChar letter)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_bound.remove(asLetter(letter));
}

void DriveLetters::bindAll(const QString &list)
{
    const QStringList entries = list.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString &entry : entries) {
        const QString letter = entry.section(QLatin1Char('='), 0, 0).trimmed();
        if (letter.size() != 1 || !bind(letter.at(0), entry.section(QLatin1Char('='), 1)))
            qInfo() << "[Drives] can't be bound to a letter:" << entry;
    }
}

QChar DriveLetters::letterOf(const QString &text)
{
    if (text.isEmpty() || text.size() > 3)
        return {};
    if (text.size() > 1 && text.at(1) != QLatin1Char(':'))
        return {};
    if (text.size() > 2 && text.at(2) != QLatin1Char('/') && text.at(2) != QLatin1Char('\\'))
        return {};
    return asLetter(text.at(0));
}

QString DriveLetters::resolve(const QString &path) const
{
    const QChar letter = letterOf(path.left(3));
    // A single letter is a drive, "D:name" is not: it would be relative to a folder that the drive has none
    // of.
    if (letter.isNull())
        return path;
    const auto found = drive(letter);
    if (!found)
        return path;
    QString rest = path.mid(3);
    if (rest.isEmpty())
        return found->target;
    rest.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const bool slash = found->target.endsWith(QLatin1Char('/')) || found->target.endsWith(QLatin1Char('\\'));
    return found->target + (slash ? QString() : QStringLiteral("/")) + rest;
}

QString DriveLetters::volumeLabel(QChar letter) const
{
    const auto found = drive(letter);
    if (!found)
        return {};
    return found->isVirtual ? discLabel(found->target) : MachineDrives::volumeLabel(*found);
}
