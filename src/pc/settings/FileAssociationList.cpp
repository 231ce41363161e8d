#include "FileAssociationList.h"

#include "ISettingsHost.h"

#include "core/CommonInfoManager.h"
#include "core/SettingsManager.h"

#include <QDebug>
#include <QPointer>
#include <QRegularExpression>

namespace {

constexpr QChar Separator(';');

QStringList knownExtensions()
{
    return CommonInfoManager::playableExtensions();
}

// The user may leave the last separator away.
QString closed(const QString &text)
{
    const QString trimmed = text.trimmed();
    return trimmed.isEmpty() || trimmed.endsWith(Separator) ? trimmed : trimmed + Separator;
}

} // namespace

FileAssociationList::FileAssociationList(ISettingsHost &host, QObject *parent)
    : QObject(parent)
    , m_host(host)
{
    setDefault();
}

void FileAssociationList::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    emit changed();
}

void FileAssociationList::setEnabled(bool enabled)
{
    if (enabled == m_isEnabled)
        return;
    m_isEnabled = enabled;
    emit changed();
}

QString FileAssociationList::textOf(const QStringList &extensions)
{
    QStringList parts;
    for (const QString &extension : extensions)
        parts.append(QStringLiteral("*.%1;").arg(extension));
    // With blanks, so that a line ends between two of them.
    return parts.join(QLatin1Char(' '));
}

QStringList FileAssociationList::extensionsOf(const QString &text)
{
    QStringList found;
    const QStringList parts = text.split(Separator, Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QString name = part.trimmed().toLower();
        if (!name.startsWith(QLatin1String("*.")))
            continue;
        const QString extension = name.mid(2);
        if (!extension.isEmpty() && !found.contains(extension))
            found.append(extension);
    }
    return found;
}

FileAssociationList::Problem FileAssociationList::problemOf(const QString &text)
{
    // Possessive, so that a long wrong text costs no more than a right one.
    static const QRegularExpression form(QStringLiteral("\\A(?:\\*\\.[a-zA-Z0-9-]++;\\s*+)*+\\z"));
    const QString whole = closed(text);
    if (!form.match(whole).hasMatch())
        return Problem::Form;
    const QStringList known = knownExtensions();
    const QStringList wanted = extensionsOf(whole);
    for (const QString &extension : wanted) {
        if (!known.contains(extension))
            return Problem::Unknown;
    }
    return Problem::None;
}

FileAssociationList::Problem FileAssociationList::problem() const
{
    return m_isEnabled ? problemOf(m_text) : Problem::None;
}

QString FileAssociationList::problemText() const
{
    switch (problem()) {
    case Problem::Form:
        return tr("Please write each extension as *.mkv and separate them by semicolons.");
    case Problem::Unknown:
        return tr("Oops! This file extension is not supported yet.");
    case Problem::None:
        break;
    }
    return {};
}

QStringList FileAssociationList::extensions() const
{
    return extensionsOf(m_text);
}

void FileAssociationList::load(const SettingsManager &store)
{
    QStringList stored;
    const QStringList known = knownExtensions();
    const QStringList types = store.fileAssociations();
    // Older files hold a type with its point.
    for (const QString &type : types) {
        QString extension = type.trimmed().toLower();
        while (extension.startsWith('*') || extension.startsWith('.'))
            extension.remove(0, 1);
        if (known.contains(extension) && !stored.contains(extension))
            stored.append(extension);
    }
    m_wasEnabled = store.enableFileAssociation();
    m_isEnabled = m_wasEnabled;
    m_text = textOf(stored.isEmpty() ? known : stored);
    emit changed();
}

void FileAssociationList::setDefault()
{
    m_isEnabled = false;
    m_text = textOf(knownExtensions());
    emit changed();
}

void FileAssociationList::save(SettingsManager &store)
{
    const bool wasEnabled = store.enableFileAssociation();
    const QStringList before = store.fileAssociations();
    const QStringList wanted = m_isEnabled ? extensions() : QStringList();
    store.setEnableFileAssociation(m_isEnabled);
    store.setFileAssociations(extensions());
    // What the user has chosen outside of the program is left alone by those who never switched this on.
    if (!m_isEnabled && !m_wasEnabled)
        return;
    m_wasEnabled = m_isEnabled;
    const QPointer<FileAssociationList> self(this);
    ISettingsHost &host = m_host;
    m_host.readAssociations([self, &host, &store, wanted, wasEnabled, before](const QStringList &current) {
        QStringList add;
        QStringList remove;
        for (const QString &extension : wanted) {
            if (!current.contains(extension))
                add.append(extension);
        }
        for (const QString &extension : current) {
            if (!wanted.contains(extension))
                remove.append(extension);
        }
        qInfo().noquote() << "[FileAss] Current System List: " << current.join(Separator);
        qInfo().noquote() << "[FileAss] Add List: " << add.join(Separator);
        qInfo().noquote() << "[FileAss] Remove List: " << remove.join(Separator);
        if (add.isEmpty() && remove.isEmpty())
            return;
        host.changeAssociations(add, remove, [self, &store, wasEnabled, before](bool isDone) {
            if (isDone)
                return;
            qInfo() << "[FileAss] the system has not taken the change";
            store.setEnableFileAssociation(wasEnabled);
            store.setFileAssociations(before);
            if (!self)
                return;
            self->m_wasEnabled = wasEnabled;
            self->setEnabled(wasEnabled);
            emit self->refused();
        });
    });
}
