#include "FakeScript.h"

#include <algorithm>
#include <chrono>
#include <utility>

void FakeScript::reset()
{
    std::lock_guard lock(m_mutex);
    m_numbers.clear();
    m_texts.clear();
    m_held.clear();
    m_calls.clear();
    m_changed.notify_all();
}

void FakeScript::answer(const std::string &operation, double value)
{
    std::lock_guard lock(m_mutex);
    m_numbers[operation] = value;
}

void FakeScript::answerText(const std::string &operation, const std::string &text)
{
    std::lock_guard lock(m_mutex);
    m_texts[operation] = text;
}

double FakeScript::number(const std::string &operation, double otherwise) const
{
    std::lock_guard lock(m_mutex);
    const auto found = m_numbers.find(operation);
    return found == m_numbers.end() ? otherwise : found->second;
}

const char *FakeScript::text(const std::string &operation, const char *otherwise) const
{
    std::lock_guard lock(m_mutex);
    const auto found = m_texts.find(operation);
    return found == m_texts.end() ? otherwise : found->second.c_str();
}

void FakeScript::hold(const std::string &operation)
{
    std::lock_guard lock(m_mutex);
    m_held.insert(operation);
}

void FakeScript::release(const std::string &operation)
{
    std::lock_guard lock(m_mutex);
    m_held.erase(operation);
    m_changed.notify_all();
}

bool FakeScript::waitHeld(const std::string &operation, int milliseconds)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                              [&] { return m_waiting[operation] > 0; });
}

std::vector<std::string> FakeScript::calls() const
{
    std::lock_guard lock(m_mutex);
    return m_calls;
}

void FakeScript::clearCalls()
{
    std::lock_guard lock(m_mutex);
    m_calls.clear();
}

bool FakeScript::waitCall(const std::string &beginning, int milliseconds)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait_for(lock, std::chrono::milliseconds(milliseconds), [&] {
        return std::any_of(m_calls.begin(), m_calls.end(),
                           [&](const std::string &call) { return call.rfind(beginning, 0) == 0; });
    });
}

void FakeScript::note(const std::string &operation, std::string line)
{
    std::unique_lock lock(m_mutex);
    m_calls.push_back(std::move(line));
    m_changed.notify_all();
    if (!m_held.count(operation))
        return;
    ++m_waiting[operation];
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return !m_held.count(operation); });
    --m_waiting[operation];
}
