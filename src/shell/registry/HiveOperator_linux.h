// Changes and reads the registry that lies in a hive file. Each change is in the file when its call returns;
// Commit() has nothing left to do.
#pragma once

#include "HiveFile_linux.h"
#include "IRegOperator.h"
#include "IRegReader.h"

#include <functional>

class HiveOperator final : public IRegOperator, public IRegReader {
public:
    explicit HiveOperator(std::string hivePath = HiveFile::defaultPath());

    RegResult SetStringValue(RegRoot root, const std::string &keyPath, const std::string &name,
                             const std::string &value) override;
    RegResult SetDwordValue(RegRoot root, const std::string &keyPath, const std::string &name,
                            std::uint32_t value) override;
    RegResult SetStringValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                               const std::string &value) override;
    RegResult SetDwordValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                              std::uint32_t value) override;
    RegResult DeleteValue(RegRoot root, const std::string &keyPath, const std::string &name) override;
    RegResult DeleteValue64(RegRoot root, const std::string &keyPath, const std::string &name) override;
    RegResult DeleteKey(RegRoot root, const std::string &keyPath, const std::string &subKey) override;
    RegResult DeleteKey64(RegRoot root, const std::string &keyPath, const std::string &subKey) override;
    // There are no servers here: a failure.
    RegResult RegisterServer(const std::string &folder, const std::string &fileName) override;
    RegResult UnregisterServer(const std::string &folder, const std::string &fileName) override;
    int Commit() override;

    [[nodiscard]] std::optional<std::string> stringValue(RegRoot root, const std::string &keyPath,
                                                         const std::string &name) const override;
    [[nodiscard]] std::optional<std::uint32_t> dwordValue(RegRoot root, const std::string &keyPath,
                                                          const std::string &name) const override;
    [[nodiscard]] bool hasKey(RegRoot root, const std::string &keyPath) const override;

private:
    RegResult change(const std::function<bool(HiveFile &)> &work);

    std::string m_hivePath;
};
