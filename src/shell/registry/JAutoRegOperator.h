// Changes the registry by the way that this process has: at once where it may, else through the helper.
//
// Used once: make it, call, commit. After the commit there is no operator left to ask. Owns its operators.
#pragma once

#include "IRegOperator.h"

#include <functional>
#include <memory>
#include <vector>

class JAutoRegOperator final : public IRegOperator {
public:
    using Operators = std::vector<std::unique_ptr<IRegOperator>>;

    // With directOnly nobody is asked, whatever the system.
    explicit JAutoRegOperator(bool directOnly = false);
    // The same where the system's answer is known.
    JAutoRegOperator(bool directOnly, bool needsElevation);
    // Tried in this order: the first that does not fail ends the call.
    explicit JAutoRegOperator(Operators operators);

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

    [[nodiscard]] const Operators &operators() const { return m_operators; }

private:
    RegResult firstGood(const std::function<RegResult(IRegOperator &)> &call);

    Operators m_operators;
};
