#include "HiveOperator_linux.h"

#include <utility>

HiveOperator::HiveOperator(std::string hivePath)
    : m_hivePath(std::move(hivePath))
{
}

RegResult HiveOperator::SetStringValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                       const std::string &value)
{
    return change([&](HiveFile &hive) { return hive.setValue(root, keyPath, name, value); });
}

RegResult HiveOperator::SetDwordValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                      std::uint32_t value)
{
    return change([&](HiveFile &hive) { return hive.setValue(root, keyPath, name, value); });
}

RegResult HiveOperator::SetStringValue64(RegRoot, const std::string &keyPath, const std::string &name,
                                         const std::string &value)
{
    return SetStringValue(RegRoots::handle(RegRoots::LocalMachine), keyPath, name, value);
}

RegResult HiveOperator::SetDwordValue64(RegRoot, const std::string &keyPath, const std::string &name,
                                        std::uint32_t value)
{
    return SetDwordValue(RegRoots::handle(RegRoots::LocalMachine), keyPath, name, value);
}

RegResult HiveOperator::DeleteValue(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return change([&](HiveFile &hive) { return hive.deleteValue(root, keyPath, name); });
}

RegResult HiveOperator::DeleteValue64(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return DeleteValue(root, keyPath, name);
}

RegResult HiveOperator::DeleteKey(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return change([&](HiveFile &hive) { return hive.deleteKey(root, keyPath, subKey); });
}

RegResult HiveOperator::DeleteKey64(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return DeleteKey(root, keyPath, subKey);
}

RegResult HiveOperator::RegisterServer(const std::string &, const std::string &)
{
    return RegResults::Failure;
}

RegResult HiveOperator::UnregisterServer(const std::string &, const std::string &)
{
    return RegResults::Failure;
}

int HiveOperator::Commit()
{
    return 1;
}

std::optional<std::string> HiveOperator::stringValue(RegRoot root, const std::string &keyPath,
                                                     const std::string &name) const
{
    HiveFile hive(m_hivePath);
    const auto value = hive.load() ? hive.value(root, keyPath, name) : std::nullopt;
    const auto *text = value ? std::get_if<std::string>(&*value) : nullptr;
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

std::optional<std::uint32_t> HiveOperator::dwordValue(RegRoot root, const std::string &keyPath,
                                                      const std::string &name) const
{
    HiveFile hive(m_hivePath);
    const auto value = hive.load() ? hive.value(root, keyPath, name) : std::nullopt;
    const auto *number = value ? std::get_if<std::uint32_t>(&*value) : nullptr;
    return number ? std::optional<std::uint32_t>(*number) : std::nullopt;
}

bool HiveOperator::hasKey(RegRoot root, const std::string &keyPath) const
{
    HiveFile hive(m_hivePath);
    return hive.load() && hive.hasKey(root, keyPath);
}

RegResult HiveOperator::change(const std::function<bool(HiveFile &)> &work)
{
    HiveFile hive(m_hivePath);
    return hive.load() && work(hive) && hive.save() ? RegResults::Success : RegResults::Failure;
}
