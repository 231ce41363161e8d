#include "JRegOperator.h"

#include "JRegKey_win.h"
#include "ProgramPlace.h"

#include <shlobj.h>

namespace {

// Writing alone, in the 64-bit view.
constexpr REGSAM kWriteAccess64 = 0x20106;
constexpr DWORD kNameLength = 256;
// The registry itself holds no more levels.
constexpr int kMaxDepth = 512;
// Below this WinExec tells an error.
constexpr UINT kFirstGoodStart = 32;

RegResult resultOf(LONG error)
{
    return error == ERROR_SUCCESS ? RegResults::Success : RegResults::Failure;
}

RegResult resultOfDeletion(LONG error)
{
    return resultOf(error == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : error);
}

RegResult setValue(RegRoot root, const std::string &keyPath, REGSAM access, const std::string &name,
                   DWORD type, const void *data, std::size_t size)
{
    JRegKey key;
    LONG error = key.create(static_cast<HKEY>(root), keyPath.c_str(), access);
    if (error == ERROR_SUCCESS)
        error = RegSetValueExA(key.handle(), name.c_str(), 0, type, static_cast<const BYTE *>(data),
                               static_cast<DWORD>(size));
    return resultOf(error);
}

RegResult setString(RegRoot root, const std::string &keyPath, REGSAM access, const std::string &name,
                    const std::string &value)
{
    return setValue(root, keyPath, access, name, REG_SZ, value.c_str(), value.size() + 1);
}

RegResult setDword(RegRoot root, const std::string &keyPath, REGSAM access, const std::string &name,
                   DWORD value)
{
    return setValue(root, keyPath, access, name, REG_DWORD, &value, sizeof value);
}

RegResult deleteValue(RegRoot root, const std::string &keyPath, REGSAM access, const std::string &name)
{
    JRegKey key;
    LONG error = key.create(static_cast<HKEY>(root), keyPath.c_str(), access);
    if (error == ERROR_SUCCESS)
        error = RegDeleteValueA(key.handle(), name.c_str());
    return resultOfDeletion(error);
}

// A subkey with all below it. Ends at the first that can't be deleted: the first of a key would be met again.
LONG deleteTree(const JRegKey &parent, const char *name, REGSAM access, int depth)
{
    if (depth > kMaxDepth)
        return ERROR_CANTWRITE;
    {
        JRegKey key;
        LONG error = key.open(parent.handle(), name, access);
        while (error == ERROR_SUCCESS) {
            char child[kNameLength] = {};
            DWORD length = kNameLength;
            error = RegEnumKeyExA(key.handle(), 0, child, &length, nullptr, nullptr, nullptr, nullptr);
            if (error == ERROR_SUCCESS)
                error = deleteTree(key, child, access, depth + 1);
        }
        if (error != ERROR_NO_MORE_ITEMS)
            return error;
    }
    return parent.deleteSubKey(name);
}

RegResult deleteKey(RegRoot root, const std::string &keyPath, REGSAM access, const std::string &subKey)
{
    // Without a name the system takes the parent for the key that is meant.
    if (subKey.find_first_not_of('\\') == std::string::npos)
        return RegResults::Failure;
    JRegKey key;
    LONG error = key.create(static_cast<HKEY>(root), keyPath.c_str(), access);
    if (error == ERROR_SUCCESS)
        error = deleteTree(key, subKey.c_str(), access, 0);
    return resultOfDeletion(error);
}

// Runs the system's tool for servers with one file.
RegResult runServerTool(const char *options, const std::string &file)
{
    char folder[MAX_PATH] = {};
    const UINT length = GetSystemDirectoryA(folder, MAX_PATH);
    if (length == 0 || length >= MAX_PATH || file.empty() || file.find('"') != std::string::npos)
        return RegResults::Failure;
    const std::string tool = ProgramPlace::joined(folder, "regsvr32.exe");
    const std::string command = tool + options + '"' + file + '"';
    const UINT started = WinExec(command.c_str(), SW_HIDE);
    SHChangeNotify(SHCNE_ASSOCCHANGED, SHCNF_IDLIST, nullptr, nullptr);
    return started < kFirstGoodStart ? RegResults::Failure : RegResults::Success;
}

} // namespace

RegResult JRegOperator::SetStringValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                       const std::string &value)
{
    return setString(root, keyPath, JRegKey::Access, name, value);
}

RegResult JRegOperator::SetDwordValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                      std::uint32_t value)
{
    return setDword(root, keyPath, JRegKey::Access, name, value);
}

RegResult JRegOperator::SetStringValue64(RegRoot, const std::string &keyPath, const std::string &name,
                                         const std::string &value)
{
    return setString(HKEY_LOCAL_MACHINE, keyPath, kWriteAccess64, name, value);
}

RegResult JRegOperator::SetDwordValue64(RegRoot, const std::string &keyPath, const std::string &name,
                                        std::uint32_t value)
{
    return setDword(HKEY_LOCAL_MACHINE, keyPath, kWriteAccess64, name, value);
}

RegResult JRegOperator::DeleteValue(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return deleteValue(root, keyPath, JRegKey::Access, name);
}

RegResult JRegOperator::DeleteValue64(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return deleteValue(root, keyPath, JRegKey::Access64, name);
}

RegResult JRegOperator::DeleteKey(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return deleteKey(root, keyPath, JRegKey::Access, subKey);
}

RegResult JRegOperator::DeleteKey64(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return deleteKey(root, keyPath, JRegKey::Access64, subKey);
}

RegResult JRegOperator::RegisterServer(const std::string &folder, const std::string &fileName)
{
    const std::string file = ProgramPlace::joined(folder, fileName);
    if (!ProgramPlace::fileExists(file)) {
        const std::string fresh = ProgramPlace::joined(ProgramPlace::joined(folder, "temp"), fileName);
        // Where this fails the tool says so itself.
        CopyFileA(fresh.c_str(), file.c_str(), TRUE);
    }
    return runServerTool(" /s ", file);
}

RegResult JRegOperator::UnregisterServer(const std::string &folder, const std::string &fileName)
{
    return runServerTool(" /u /s ", ProgramPlace::joined(folder, fileName));
}

int JRegOperator::Commit()
{
    return 1;
}
