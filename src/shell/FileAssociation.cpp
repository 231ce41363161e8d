#include "FileAssociation.h"

#include "core/CommonInfoManager.h"

#include <QDebug>
#include <QRegularExpression>
#include <QSet>

namespace {

// Those of the lines that pass the test, once each; the others are logged.
template<typename Test>
QStringList taken(const QStringList &lines, const char *refusal, Test test)
{
    QStringList extensions;
    for (const QString &line : lines) {
        const QString extension = FileAssociation::extensionOf(line);
        if (!test(extension))
            qInfo().noquote() << "[FileAss]" << refusal << line.left(64);
        else if (!extensions.contains(extension))
            extensions << extension;
    }
    return extensions;
}

} // namespace

bool FileAssociation::AssociateExtensions(const QStringList &extensions)
{
    return ChangeExtensions(extensions, {});
}

bool FileAssociation::RestoreExtensions(const QStringList &extensions)
{
    return ChangeExtensions({}, extensions);
}

bool FileAssociation::ChangeExtensions(const QStringList &associate, const QStringList &restore)
{
    const QStringList wanted = taken(associate, "unknown extension:", isKnown);
    // An earlier version may have known one that is unknown now.
    const QStringList unwanted =
        taken(restore, "no extension:", [](const QString &extension) { return !extension.isEmpty(); });
    if (wanted.isEmpty() && unwanted.isEmpty())
        return associate.isEmpty() && restore.isEmpty();
    const bool done = changeKnown(wanted, unwanted);
    qInfo().noquote() << "[FileAss] associate" << wanted.join(QLatin1Char(' ')) << "restore"
                      << unwanted.join(QLatin1Char(' ')) << (done ? "success" : "fail");
    return done;
}

bool FileAssociation::IsAssociated(const QString &extension)
{
    const QString name = extensionOf(extension);
    return !name.isEmpty() && isMarked(name);
}

bool FileAssociation::isKnown(const QString &extension)
{
    static const QSet<QString> known = [] {
        const QStringList extensions = CommonInfoManager::playableExtensions();
        return QSet<QString>(extensions.begin(), extensions.end());
    }();
    return known.contains(extensionOf(extension));
}

QString FileAssociation::extensionOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(R"(^\s*(?:\*?\.)?([a-z0-9][a-z0-9_+-]{0,31})\s*$)"),
                                         QRegularExpression::CaseInsensitiveOption);
    return form.match(text).captured(1).toLower();
}
