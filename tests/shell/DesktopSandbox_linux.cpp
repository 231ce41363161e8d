#include "DesktopSandbox_linux.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

DesktopSandbox::DesktopSandbox()
{
    const std::pair<const char *, const char *> folders[] = {
        {"XDG_CONFIG_HOME", "config"}, {"XDG_DATA_HOME", "data"}, {"XDG_DATA_DIRS", "machine"}};
    for (const auto &[variable, folder] : folders) {
        m_before.emplace_back(variable, qgetenv(variable));
        QDir().mkpath(path(folder));
        qputenv(variable, QFile::encodeName(path(folder)));
    }
    // The table of types is the machine's own.
    qputenv("XDG_DATA_DIRS", QFile::encodeName(path("machine")) + ":/usr/share");
}

DesktopSandbox::~DesktopSandbox()
{
    for (const auto &[variable, value] : m_before)
        qputenv(variable.constData(), value);
}

void DesktopSandbox::write(const QString &name, const QByteArray &content) const
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
}

QByteArray DesktopSandbox::content(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool DesktopSandbox::has(const QString &name) const
{
    return QFileInfo::exists(path(name));
}

QString DesktopSandbox::listName()
{
    return QStringLiteral("config/mimeapps.list");
}
