#include "FileAssociation.h"

#include "core/ApplicationInfoManager.h"
#include "core/CommonInfoManager.h"
#include "registry/JAutoRegOperator.h"
#include "registry/JRegReader.h"
#include "registry/JX64RegOperator.h"
#include "registry/RegistryAssociation.h"
#include "registry/RegistryLog.h"

#include <QDebug>
#include <QDir>

#include <mutex>

#include <windows.h>

#include <shlobj.h>

namespace {

std::mutex &oneAtATime()
{
    static std::mutex mutex;
    return mutex;
}

std::string narrow(const QString &text)
{
    return text.toLocal8Bit().toStdString();
}

std::vector<std::string> withPoints(const QStringList &extensions)
{
    std::vector<std::string> list;
    for (const QString &extension : extensions)
        list.push_back('.' + narrow(extension));
    return list;
}

// The program's file in a form that the registry's narrow texts can hold: a folder's name may have letters
// that the code page lacks, and the system has a short name for it then.
QString holdable(const QString &file)
{
    if (QString::fromLocal8Bit(file.toLocal8Bit()) == file)
        return file;
    wchar_t buffer[MAX_PATH] = {};
    const DWORD length = GetShortPathNameW(reinterpret_cast<const wchar_t *>(file.utf16()), buffer, MAX_PATH);
    return length > 0 && length < MAX_PATH ? QString::fromWCharArray(buffer, int(length)) : file;
}

RegistryAssociation::Names names()
{
    const auto *info = ApplicationInfoManager::instance();
    const QString file = info->programFile();
    const QString narrowFile = holdable(file);
    RegistryAssociation::Names made;
    made.application = narrow(ApplicationInfoManager::productName());
    made.progId = narrow(ApplicationInfoManager::progId());
    made.executable = narrow(info->programFileName());
    made.command = narrow(info->openCommand().replace(file, narrowFile));
    made.icon = narrow(info->iconCommand().replace(file, narrowFile));
    made.extensions = withPoints(CommonInfoManager::playableExtensions());
    return made;
}

// Runs the work, one at a time, and lets the shell look again.
template<typename Work>
auto withRegistry(Work work)
{
    std::lock_guard<std::mutex> lock(oneAtATime());
    RegistryLog::setSink(
        [](const std::string &line) { qInfo().noquote() << QString::fromLocal8Bit(line.c_str()); });
    JX64RegOperator::setHelperName(narrow(ApplicationInfoManager::registryHelperName()));
    const JRegReader reader;
    RegistryAssociation association(names(), reader,
                                    [] { return std::make_unique<JAutoRegOperator>(false); });
    return work(association);
}

template<typename Work>
bool change(const char *what, Work work)
{
    const bool done = withRegistry(work);
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
    qInfo().noquote() << "[FileAss]" << what << (done ? "success" : "fail");
    return done;
}

} // namespace

bool FileAssociation::RegisterApplication()
{
    return change("register application",
                  [](RegistryAssociation &association) { return association.RegisterApplication(); });
}

bool FileAssociation::UnregisterApplication()
{
    return change("unregister application",
                  [](RegistryAssociation &association) { return association.UnregisterApplication(); });
}

bool FileAssociation::RegisterAutoplay(bool enable)
{
    return change(enable ? "autoplay on" : "autoplay off", [enable](RegistryAssociation &association) {
        return association.RegisterAutoplay(enable);
    });
}

QStringList FileAssociation::associatedExtensions()
{
    return withRegistry([](RegistryAssociation &association) {
        QStringList found;
        const QStringList extensions = CommonInfoManager::playableExtensions();
        for (const QString &extension : extensions) {
            if (association.IsAssociated('.' + narrow(extension)))
                found << extension;
        }
        return found;
    });
}

bool FileAssociation::changeKnown(const QStringList &associate, const QStringList &restore)
{
    return change("write extensions", [&](RegistryAssociation &association) {
        return association.ChangeExtensions(withPoints(associate), withPoints(restore));
    });
}

bool FileAssociation::isMarked(const QString &extension)
{
    return withRegistry(
        [&](RegistryAssociation &association) { return association.IsAssociated('.' + narrow(extension)); });
}
