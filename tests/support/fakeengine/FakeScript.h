// The memory of the scripted engine: answers, holds and the list of calls. Shared by all its objects; every
// operation may be called from any thread.
#pragma once

#include <condition_variable>
#include <map>
#include <mutex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

class FakeScript final {
public:
    void reset();

    void answer(const std::string &operation, double value);
    void answerText(const std::string &operation, const std::string &text);
    [[nodiscard]] double number(const std::string &operation, double otherwise) const;
    // Lives until the answer is changed.
    [[nodiscard]] const char *text(const std::string &operation, const char *otherwise) const;

    void hold(const std::string &operation);
    void release(const std::string &operation);
    bool waitHeld(const std::string &operation, int milliseconds);

    // Notes the call, then waits while the operation is held.
    template<class... Arguments>
    void called(const std::string &operation, const Arguments &...arguments)
    {
        std::ostringstream line;
        line << operation << '(';
        int position = 0;
        (void)position;
        ((line << (position++ ? ", " : ""), print(line, arguments)), ...);
        line << ')';
        note(operation, line.str());
    }

    [[nodiscard]] std::vector<std::string> calls() const;
    void clearCalls();
    bool waitCall(const std::string &beginning, int milliseconds);

private:
    static void print(std::ostream &out, bool value) { out << (value ? "true" : "false"); }
    static void print(std::ostream &out, const char *text) { out << (text ? text : "null"); }
    template<class Number>
    static void print(std::ostream &out, Number value)
    {
        out << value;
    }

    void note(const std::string &operation, std::string line);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::string, double> m_numbers;
    std::map<std::string, std::string> m_texts;
    std::set<std::string> m_held;
    std::map<std::string, int> m_waiting;
    std::vector<std::string> m_calls;
};
