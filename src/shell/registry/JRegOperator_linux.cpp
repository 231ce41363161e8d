#include "JRegOperator.h"

#include "HiveOperator_linux.h"

RegResult JRegOperator::SetStringValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                       const std::string &value)
{
    return HiveOperator().SetStringValue(root, keyPath, name, value);
}

RegResult JRegOperator::SetDwordValue(RegRoot root, const std::string &keyPath, const std::string &name,
                                      std::uint32_t value)
{
    return HiveOperator().SetDwordValue(root, keyPath, name, value);
}

RegResult JRegOperator::SetStringValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                                         const std::string &value)
{
    return HiveOperator().SetStringValue64(root, keyPath, name, value);
}

RegResult JRegOperator::SetDwordValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                                        std::uint32_t value)
{
    return HiveOperator().SetDwordValue64(root, keyPath, name, value);
}

RegResult JRegOperator::DeleteValue(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return HiveOperator().DeleteValue(root, keyPath, name);
}

RegResult JRegOperator::DeleteValue64(RegRoot root, const std::string &keyPath, const std::string &name)
{
    return HiveOperator().DeleteValue64(root, keyPath, name);
}

RegResult JRegOperator::DeleteKey(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return HiveOperator().DeleteKey(root, keyPath, subKey);
}

RegResult JRegOperator::DeleteKey64(RegRoot root, const std::string &keyPath, const std::string &subKey)
{
    return HiveOperator().DeleteKey64(root, keyPath, subKey);
}

RegResult JRegOperator::RegisterServer(const std::string &folder, const std::string &fileName)
{
    return HiveOperator().RegisterServer(folder, fileName);
}

RegResult JRegOperator::UnregisterServer(const std::string &folder, const std::string &fileName)
{
    return HiveOperator().UnregisterServer(folder, fileName);
}

int JRegOperator::Commit()
{
    return 1;
}
