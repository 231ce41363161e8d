#include "DRegTaskManager.h"

#include "JRegOperator.h"
#include "ProfileFile.h"
#include "ProgramPlace.h"
#include "RegistryLog.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace {

constexpr char kFileName[] = "OP_RegList.dat";

constexpr char kTaskSection[] = "Task";
constexpr char kCount[] = "Count";
constexpr char kOpType[] = "OPType";
constexpr char kRootType[] = "RootType";
constexpr char kKeyPath[] = "KeyPath";
constexpr char kKeyName[] = "KeyName";
constexpr char kValueType[] = "ValueType";
constexpr char kKeyValue[] = "KeyValue";

// What a read gives for a key that is not there.
constexpr int kNoNumber = 65553;
constexpr char kNoText[] = "__NULL_DATA__";

bool isMissing(const std::string &text)
{
    return text.find(kNoText) != std::string::npos;
}

// The first number in a text, cut to 32 bits; 0 when it begins with none.
std::int32_t numberOf(const std::string &text)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(std::strtoll(text.c_str(), nullptr, 10)));
}

std::optional<RegTask> readTask(const ProfileFile &file, const std::string &section)
{
    RegTask task;
    task.opType = file.readInt(section, kOpType, kNoNumber);
    task.rootType = file.readInt(section, kRootType, kNoNumber);
    task.keyPath = file.readString(section, kKeyPath, kNoText);
    task.keyName = file.readString(section, kKeyName, kNoText);
    task.valueType = file.readInt(section, kValueType, kNoNumber);
    task.keyValue = file.readString(section, kKeyValue, kNoText);
    if (task.opType == kNoNumber || task.rootType == kNoNumber || task.valueType == kNoNumber
        || isMissing(task.keyPath) || isMissing(task.keyName) || isMissing(task.keyValue))
        return std::nullopt;
    if (task.valueType == RegTask::Number)
        task.numberValue = numberOf(task.keyValue);
    return task;
}

ProfileFile::Section sectionOf(const RegTask &task, std::size_t index)
{
    return {std::to_string(index),
            {{kOpType, std::to_string(task.opType)},
             {kRootType, std::to_string(task.rootType)},
             {kKeyPath, task.keyPath},
             {kKeyName, task.keyName},
             {kValueType, std::to_string(task.valueType)},
             {kKeyValue, task.keyValue}}};
}

ProfileFile::Section countSection(std::size_t count)
{
    return {kTaskSection, {{kCount, std::to_string(count)}}};
}

// The numbers of the file's tasks below a count, ascending. The count alone may claim billions.
std::vector<int> taskNumbers(const ProfileFile &file, int count)
{
    std::vector<int> numbers;
    for (const std::string &name : file.sectionNames()) {
        const int number = static_cast<int>(std::strtol(name.c_str(), nullptr, 10));
        if (number >= 0 && number < count && std::to_string(number) == name)
            numbers.push_back(number);
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    return numbers;
}

RegTask taskOf(std::int32_t opType, std::int32_t rootType, const std::string &keyPath,
               const std::string &keyName)
{
    RegTask task;
    task.opType = opType;
    task.rootType = rootType;
    task.keyPath = keyPath;
    task.keyName = keyName;
    return task;
}

RegTask taskOf(std::int32_t opType, std::int32_t rootType, const std::string &keyPath,
               const std::string &keyName, const std::string &value)
{
    RegTask task = taskOf(opType, rootType, keyPath, keyName);
    task.keyValue = value;
    return task;
}

RegTask taskOf(std::int32_t opType, std::int32_t rootType, const std::string &keyPath,
               const std::string &keyName, std::int32_t value)
{
    RegTask task = taskOf(opType, rootType, keyPath, keyName);
    task.valueType = RegTask::Number;
    task.numberValue = value;
    task.keyValue = std::to_string(value);
    return task;
}

} // namespace

RegResult DRegTaskManager::Init()
{
    const std::string folder = ProgramPlace::temporaryFolder();
    if (folder.empty())
        return RegResults::Failure;
    m_filePath = ProgramPlace::joined(folder, kFileName);
    if (ProgramPlace::fileExists(m_filePath))
        return RegResults::Success;
    if (!ProgramPlace::touch(m_filePath)) {
        RegistryLog::write("[Registry] cannot make " + m_filePath);
        return RegResults::Failure;
    }
    return 1;
}

RegResult DRegTaskManager::Release()
{
    return RegResults::Success;
}

RegResult DRegTaskManager::Execute()
{
    return executeAll(Servers::Skip);
}

RegResult DRegTaskManager::AddSetString(std::int32_t rootType, const std::string &keyPath,
                                        const std::string &keyName, const std::string &value)
{
    return add(taskOf(RegTask::SetValue, rootType, keyPath, keyName, value));
}

RegResult DRegTaskManager::AddSetNumber(std::int32_t rootType, const std::string &keyPath,
                                        const std::string &keyName, std::int32_t value)
{
    return add(taskOf(RegTask::SetValue, rootType, keyPath, keyName, value));
}

RegResult DRegTaskManager::AddSetString64(std::int32_t rootType, const std::string &keyPath,
                                          const std::string &keyName, const std::string &value)
{
    return add(taskOf(RegTask::SetValue64, rootType, keyPath, keyName, value));
}

RegResult DRegTaskManager::AddSetNumber64(std::int32_t rootType, const std::string &keyPath,
                                          const std::string &keyName, std::int32_t value)
{
    return add(taskOf(RegTask::SetValue64, rootType, keyPath, keyName, value));
}

RegResult DRegTaskManager::AddDeleteValue(std::int32_t rootType, const std::string &keyPath,
                                          const std::string &keyName)
{
    return add(taskOf(RegTask::DeleteValue, rootType, keyPath, keyName));
}

RegResult DRegTaskManager::AddDeleteValue64(std::int32_t rootType, const std::string &keyPath,
                                            const std::string &keyName)
{
    return add(taskOf(RegTask::DeleteValue64, rootType, keyPath, keyName));
}

RegResult DRegTaskManager::AddDeleteKey(std::int32_t rootType, const std::string &keyPath,
                                        const std::string &keyName)
{
    return add(taskOf(RegTask::DeleteKey, rootType, keyPath, keyName));
}

RegResult DRegTaskManager::AddDeleteKey64(std::int32_t rootType, const std::string &keyPath,
                                          const std::string &keyName)
{
    return add(taskOf(RegTask::DeleteKey64, rootType, keyPath, keyName));
}

RegResult DRegTaskManager::AddRegisterServer(const std::string &folder, const std::string &file)
{
    return add(taskOf(RegTask::RegisterServer, RegTask::NoRoot, folder, file));
}

RegResult DRegTaskManager::AddUnregisterServer(const std::string &folder, const std::string &file)
{
    return add(taskOf(RegTask::UnregisterServer, RegTask::NoRoot, folder, file));
}

RegResult DRegTaskManager::Load(const std::string &path)
{
    if (!path.empty() && ProgramPlace::fileExists(path))
        m_filePath = path;
    m_tasks.clear();
    if (m_filePath.empty())
        return RegResults::Failure;
    const ProfileFile file(m_filePath);
    const int count = file.readInt(kTaskSection, kCount, kNoNumber);
    if (count == kNoNumber || count < 1)
        return RegResults::Failure;
    for (const int number : taskNumbers(file, count)) {
        if (auto task = readTask(file, std::to_string(number)))
            m_tasks.push_back(std::move(*task));
    }
    return RegResults::Success;
}

RegResult DRegTaskManager::Save()
{
    if (m_filePath.empty())
        return RegResults::Failure;
    std::vector<ProfileFile::Section> sections{countSection(m_tasks.size())};
    for (const RegTask &task : m_tasks)
        sections.push_back(sectionOf(task, sections.size() - 1));
    ProfileFile file(m_filePath);
    return file.writeSections(sections) ? RegResults::Success : RegResults::Failure;
}

bool DRegTaskManager::hasCount() const
{
    return !m_filePath.empty()
           && ProfileFile(m_filePath).readInt(kTaskSection, kCount, kNoNumber) != kNoNumber;
}

RegResult DRegTaskManager::executeAll(Servers servers)
{
    JRegOperator registry;
    for (const RegTask &task : m_tasks)
        run(registry, task, servers);
    if (!m_filePath.empty()) {
        ProfileFile file(m_filePath);
        if (!file.writeSections({countSection(0)}))
            RegistryLog::write("[Registry] the tasks stay in " + m_filePath);
    }
    return RegResults::Success;
}

RegResult DRegTaskManager::add(RegTask task)
{
    if (!ProfileFile::canHold(task.keyPath) || !ProfileFile::canHold(task.keyName)
        || !ProfileFile::canHold(task.keyValue))
        return RegResults::Failure;
    m_tasks.push_back(std::move(task));
    return RegResults::Success;
}

void DRegTaskManager::run(IRegOperator &registry, const RegTask &task, Servers servers)
{
    if (servers == Servers::Run && task.opType == RegTask::RegisterServer) {
        registry.RegisterServer(task.keyPath, task.keyName);
        return;
    }
    if (servers == Servers::Run && task.opType == RegTask::UnregisterServer) {
        registry.UnregisterServer(task.keyPath, task.keyName);
        return;
    }
    const RegRoot root = RegRoots::handle(task.rootType);
    if (!root)
        return;
    const bool isText = task.valueType == RegTask::String;
    const bool isNumber = task.valueType == RegTask::Number;
    const auto number = static_cast<std::uint32_t>(task.numberValue);
    switch (task.opType) {
    case RegTask::SetValue:
        if (isText)
            registry.SetStringValue(root, task.keyPath, task.keyName, task.keyValue);
        else if (isNumber)
            registry.SetDwordValue(root, task.keyPath, task.keyName, number);
        break;
    case RegTask::SetValue64:
        if (isText)
            registry.SetStringValue64(root, task.keyPath, task.keyName, task.keyValue);
        else if (isNumber)
            registry.SetDwordValue64(root, task.keyPath, task.keyName, number);
        break;
    case RegTask::DeleteValue:
        registry.DeleteValue(root, task.keyPath, task.keyName);
        break;
    case RegTask::DeleteValue64:
        registry.DeleteValue64(root, task.keyPath, task.keyName);
        break;
    case RegTask::DeleteKey:
        registry.DeleteKey(root, task.keyPath, task.keyName);
        break;
    case RegTask::DeleteKey64:
        registry.DeleteKey64(root, task.keyPath, task.keyName);
        break;
    default:
        break;
    }
}
