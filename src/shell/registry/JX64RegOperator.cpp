#include "JX64RegOperator.h"

#include "ProgramPlace.h"

#include <mutex>

namespace {

struct HelperName {
    std::mutex mutex;
    std::string name{ProgramPlace::programFile("KelRegOp")};
};

HelperName &sharedName()
{
    static HelperName shared;
    return shared;
}

} // namespace

JX64RegOperator::JX64RegOperator()
    : JX64RegOperator(ProgramPlace::joined(ProgramPlace::programFolder(), helperName()), ElevatedHelper::run)
{
}

JX64RegOperator::JX64RegOperator(std::string helperPath, ElevatedHelper::Runner runner)
    : m_helperPath(std::move(helperPath))
    , m_tasks(std::make_unique<DRegTaskManager>())
    , m_runner(runner)
{
    for (int index = 0; index < RegRoots::Count; ++index)
        m_rootIndex.emplace(RegRoots::handle(index), index);
    // A failure here shows when the tasks are to be saved.
    m_tasks->Init();
}

std::string JX64RegOperator::helperName()
{
    HelperName &shared = sharedName();
    std::lock_guard<std::mutex> lock(shared.mutex);
    return shared.name;
}

void JX64RegOperator::setHelperName(const std::string &name)
{
    HelperName &shared = sharedName();
    std::lock_guard<std::mutex> lock(shared.mutex);
    shared.name = name;
}

template<typename Work>
RegResult JX64RegOperator::withIndex(RegRoot root, Work work)
{
    const auto found = m_rootIndex.find(root);
    return found == m_rootIndex.end() ? RegResults::Failure : work(found->second);
}

RegResult JX64RegOperator::SetStringValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                          const std::string &value)
{
    return withIndex(root, [&](int index) { return m_tasks->AddSetString(index, keyPath, name, value); });
}

RegResult JX64RegOperator::SetDwordValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                         std::uint32_t value)
{
    return withIndex(root, [&](int index) {
        return m_tasks->AddSetNumber(index, keyPath, name, static_cast<std::int32_t>(value));
    });
}

RegResult JX64RegOperator::SetStringValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                                            const std::string &value)
{
    return withIndex(root, [&](int index) { return m_tasks->AddSetString64(index, keyPath, name, value); });
}

RegResult JX64RegOperator::SetDwordValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                                           std::uint32_t value)
{
    return withIndex(root, [&](int index) {
        return m_tasks->AddSetNumber64(index, keyPath, name, static_cast<std::int32_t>(value));
    });
}

RegResult JX64RegOperator::DeleteValue(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return withIndex(root, [&](int index) { return m_tasks->AddDeleteValue(index, keyPath, name); });
}

RegResult JX64RegOperator::DeleteValue64(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return withIndex(root, [&](int index) { return m_tasks->AddDeleteValue64(index, keyPath, name); });
}

RegResult JX64RegOperator::DeleteKey(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return withIndex(root, [&](int index) { return m_tasks->AddDeleteKey(index, keyPath, subKey); });
}

RegResult JX64RegOperator::DeleteKey64(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return withIndex(root, [&](int index) { return m_tasks->AddDeleteKey64(index, keyPath, subKey); });
}

RegResult JX64RegOperator::RegisterServer(const std::string &folder, const std::string &fileName)
{
    return m_tasks->AddRegisterServer(folder, fileName);
}

RegResult JX64RegOperator::UnregisterServer(const std::string &folder, const std::string &fileName)
{
    return m_tasks->AddUnregisterServer(folder, fileName);
}

int JX64RegOperator::Commit()
{
    if (m_tasks->Save() != RegResults::Success)
        return 0;
    if (!ProgramPlace::fileExists(m_helperPath))
        return 0;
    return m_runner(m_helperPath, m_tasks->FilePath(), ElevatedHelper::NoLimit) == 0 ? 1 : 0;
}
