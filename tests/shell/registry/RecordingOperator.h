// An operator that writes down what it is asked, one line a call, and answers what the test tells it to.
#pragma once

#include "registry/IRegOperator.h"

#include <string>
#include <vector>

class RecordingOperator final : public IRegOperator {
public:
    struct Answers {
        RegResult result{RegResults::Success};
        int commit{1};
    };

    RecordingOperator(std::vector<std::string> &calls, Answers answers)
        : m_calls(calls)
        , m_answers(answers)
    {
    }
    explicit RecordingOperator(std::vector<std::string> &calls)
        : RecordingOperator(calls, Answers{})
    {
    }

    RegResult SetStringValue(RegRoot root, const std::string &keyPath, const std::string &name,
                             const std::string &value) override
    {
        return note("set", root, keyPath, name, value);
    }
    RegResult SetDwordValue(RegRoot root, const std::string &keyPath, const std::string &name,
                            std::uint32_t value) override
    {
        return note("number", root, keyPath, name, std::to_string(value));
    }
    RegResult SetStringValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                               const std::string &value) override
    {
        return note("set64", root, keyPath, name, value);
    }
    RegResult SetDwordValue64(RegRoot root, const std::string &keyPath, const std::string &name,
                              std::uint32_t value) override
    {
        return note("number64", root, keyPath, name, std::to_string(value));
    }
    RegResult DeleteValue(RegRoot root, const std::string &keyPath, const std::string &name) override
    {
        return note("delete value", root, keyPath, name, {});
    }
    RegResult DeleteValue64(RegRoot root, const std::string &keyPath, const std::string &name) override
    {
        return note("delete value64", root, keyPath, name, {});
    }
    RegResult DeleteKey(RegRoot root, const std::string &keyPath, const std::string &subKey) override
    {
        return note("delete key", root, keyPath, subKey, {});
    }
    RegResult DeleteKey64(RegRoot root, const std::string &keyPath, const std::string &subKey) override
    {
        return note("delete key64", root, keyPath, subKey, {});
    }
    RegResult RegisterServer(const std::string &folder, const std::string &fileName) override
    {
        return note("register", nullptr, folder, fileName, {});
    }
    RegResult UnregisterServer(const std::string &folder, const std::string &fileName) override
    {
        return note("unregister", nullptr, folder, fileName, {});
    }
    int Commit() override
    {
        m_calls.emplace_back("commit");
        return m_answers.commit;
    }

private:
    RegResult note(const std::string &call, RegRoot root, const std::string &key, const std::string &name,
                   const std::string &value)
    {
        m_calls.push_back(call + " | " + std::to_string(RegRoots::index(root)) + " | " + key + " | " + name
                          + " | " + value);
        return m_answers.result;
    }

    std::vector<std::string> &m_calls;
    Answers m_answers;
};
