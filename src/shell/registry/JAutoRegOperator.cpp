#include "JAutoRegOperator.h"

#include "JRegOperator.h"
#include "JX64RegOperator.h"
#include "ProgramPlace.h"

JAutoRegOperator::JAutoRegOperator(bool directOnly)
    : JAutoRegOperator(directOnly, !directOnly && ProgramPlace::needsElevation())
{
}

JAutoRegOperator::JAutoRegOperator(bool directOnly, bool needsElevation)
{
    if (!directOnly && needsElevation)
        m_operators.push_back(std::make_unique<JX64RegOperator>());
    else
        m_operators.push_back(std::make_unique<JRegOperator>());
}

JAutoRegOperator::JAutoRegOperator(Operators operators)
    : m_operators(std::move(operators))
{
}

RegResult JAutoRegOperator::firstGood(const std::function<RegResult(IRegOperator &)> &call)
{
    if (m_operators.empty())
        return RegResults::NoOperator;
    for (const auto &each : m_operators) {
        const RegResult result = call(*each);
        if (result >= 0)
            return result;
    }
    return RegResults::Failure;
}

RegResult JAutoRegOperator::SetStringValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                           const std::string &value)
{
    return firstGood([&](IRegOperator &each) { return each.SetStringValue(root, keyPath, name, value); });
}

RegResult JAutoRegOperator::SetDwordValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                          std::uint32_t value)
{
    return firstGood([&](IRegOperator &each) { return each.SetDwordValue(root, keyPath, name, value); });
}

RegResult JAutoRegOperator::SetStringValue64(RegRoot root, const std::string &keyPath,
                                             const std::string &name, const std::string &value)
{
    return firstGood([&](IRegOperator &each) { return each.SetStringValue64(root, keyPath, name, value); });
}

RegResult JAutoRegOperator::SetDwordValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                                            std::uint32_t value)
{
    return firstGood([&](IRegOperator &each) { return each.SetDwordValue64(root, keyPath, name, value); });
}

RegResult JAutoRegOperator::DeleteValue(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return firstGood([&](IRegOperator &each) { return each.DeleteValue(root, keyPath, name); });
}

RegResult JAutoRegOperator::DeleteValue64(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return firstGood([&](IRegOperator &each) { return each.DeleteValue64(root, keyPath, name); });
}

RegResult JAutoRegOperator::DeleteKey(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return firstGood([&](IRegOperator &each) { return each.DeleteKey(root, keyPath, subKey); });
}

RegResult JAutoRegOperator::DeleteKey64(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return firstGood([&](IRegOperator &each) { return each.DeleteKey64(root, keyPath, subKey); });
}

RegResult JAutoRegOperator::RegisterServer(const std::string &folder, const std::string &fileName)
{
    return firstGood([&](IRegOperator &each) { return each.RegisterServer(folder, fileName); });
}

RegResult JAutoRegOperator::UnregisterServer(const std::string &folder, const std::string &fileName)
{
    return firstGood([&](IRegOperator &each) { return each.UnregisterServer(folder, fileName); });
}

int JAutoRegOperator::Commit()
{
    int result = 1;
    for (auto &each : m_operators) {
        result &= each->Commit();
        each.reset();
    }
    m_operators.clear();
    return result;
}
