// Changes the registry through a helper with raised rights: records what is asked, and at Commit() saves it
// as a task file and lets the helper run it.
//
// A commit that the user refuses leaves the tasks in the list and in the file; the next one brings them with
// those added since. Owns the list.
#pragma once

#include "DRegTaskManager.h"
#include "ElevatedHelper.h"
#include "IRegOperator.h"

#include <map>
#include <memory>

class JX64RegOperator final : public IRegOperator {
public:
    // The helper beside the program, asked for by the system's means.
    JX64RegOperator();
    // For tests: another helper or another way to start it.
    JX64RegOperator(std::string helperPath, ElevatedHelper::Runner runner);

    // The file name of the helper, one for the process; "KelRegOp.exe" on Windows until another is set.
    [[nodiscard]] static std::string helperName();
    static void setHelperName(const std::string &name);

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
    RegResult RegisterServer(const std::string &folder, const std::string &fileName) override;
    RegResult UnregisterServer(const std::string &folder, const std::string &fileName) override;
    int Commit() override;

    [[nodiscard]] const std::string &helperPath() const { return m_helperPath; }
    [[nodiscard]] const DRegTaskManager &tasks() const { return *m_tasks; }

private:
    // Runs the work with the root's number; a failure for a root that has none.
    template<typename Work>
    RegResult withIndex(RegRoot root, Work work);

    std::string m_helperPath;
    std::map<RegRoot, int> m_rootIndex;
    std::unique_ptr<DRegTaskManager> m_tasks;
    ElevatedHelper::Runner m_runner;
};
