#include "DiscWorkshop.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QProcess>
#include <QStandardPaths>

namespace {

// A change of what is made needs a new number, else an old build folder keeps the old discs.
constexpr const char *CacheVersion = "6";
constexpr int ToolTimeoutMs = 120000;
constexpr int LockTimeoutMs = 240000;

QString &reason()
{
    thread_local QString text;
    return text;
}

} // namespace

QString DiscWorkshop::entry(const QString &name, const std::function<bool(const QString &)> &make)
{
    const QString cache = QStringLiteral(QUORIN_TEST_CACHE "/") + QLatin1String(CacheVersion);
    const QString path = cache + QLatin1Char('/') + name;
    if (QFileInfo::exists(path))
        return path;
    if (!QDir().mkpath(cache)) {
        fail(QStringLiteral("cannot make %1").arg(cache));
        return {};
    }
    QLockFile lock(path + QStringLiteral(".lock"));
    lock.setStaleLockTime(0);
    if (!lock.tryLock(LockTimeoutMs)) {
        fail(QStringLiteral("cannot lock %1").arg(path));
        return {};
    }
    if (QFileInfo::exists(path))
        return path;
    const QFileInfo info(path);
    const QString draft = info.path() + QStringLiteral("/draft-") + info.fileName();
    QDir(draft).removeRecursively();
    QFile::remove(draft);
    if (!make(draft))
        return {};
    if (!QFile::rename(draft, path)) {
        fail(QStringLiteral("cannot move %1").arg(draft));
        return {};
    }
    return path;
}

bool DiscWorkshop::run(const QString &program, const QStringList &arguments)
{
    if (QStandardPaths::findExecutable(program).isEmpty())
        return fail(QStringLiteral("%1 is not installed").arg(program));
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(ToolTimeoutMs)) {
        process.kill();
        process.waitForFinished();
        return fail(QStringLiteral("%1 did not end").arg(program));
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        return fail(QStringLiteral("%1 failed: %2")
                        .arg(program, QString::fromLocal8Bit(process.readAll().right(2000))));
    }
    return true;
}

bool DiscWorkshop::write(const QString &path, const QByteArray &bytes)
{
    if (!QDir().mkpath(QFileInfo(path).path()))
        return fail(QStringLiteral("cannot make the folder of %1").arg(path));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        return fail(QStringLiteral("cannot write %1").arg(path));
    return true;
}

QString DiscWorkshop::error()
{
    return reason();
}

bool DiscWorkshop::fail(const QString &text)
{
    reason() = text;
    return false;
}
