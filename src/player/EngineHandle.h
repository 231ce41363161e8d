// A pointer to an engine object that one thread may take away while others use it.
//
// use() gives the object for one command and counts the user; take() makes all later uses empty; drain()
// waits until the uses under way are over. No lock is held while an engine operation runs, so a notification
// may always come in and use the object itself. Rules for users: a use lasts one engine call, and nothing is
// emitted while it is held. drain() on a thread that holds a use would wait for itself.
#pragma once

#include <condition_variable>
#include <mutex>
#include <utility>

template<class Object>
class EngineHandle final {
public:
    class Use final {
    public:
        Use() = default;
        Use(EngineHandle *handle, Object *object)
            : m_handle(handle)
            , m_object(object)
        {
        }
        Use(Use &&other) noexcept
            : m_handle(std::exchange(other.m_handle, nullptr))
            , m_object(std::exchange(other.m_object, nullptr))
        {
        }
        Use &operator=(Use &&) = delete;
        ~Use()
        {
            if (m_handle)
                m_handle->leave();
        }

        explicit operator bool() const { return m_object; }
        Object *operator->() const { return m_object; }
        Object &operator*() const { return *m_object; }

    private:
        EngineHandle *m_handle{nullptr};
        Object *m_object{nullptr};
    };

    // Only after the object before it was taken and drained.
    void set(Object *object)
    {
        std::lock_guard lock(m_mutex);
        m_object = object;
    }

    [[nodiscard]] Use use()
    {
        std::lock_guard lock(m_mutex);
        if (!m_object)
            return {};
        ++m_users;
        return {this, m_object};
    }

    [[nodiscard]] Object *take()
    {
        std::lock_guard lock(m_mutex);
        return std::exchange(m_object, nullptr);
    }

    void drain()
    {
        std::unique_lock lock(m_mutex);
        m_free.wait(lock, [this] { return m_users == 0; });
    }

    [[nodiscard]] bool isSet() const
    {
        std::lock_guard lock(m_mutex);
        return m_object;
    }

private:
    void leave()
    {
        std::lock_guard lock(m_mutex);
        if (--m_users == 0)
            m_free.notify_all();
    }

    mutable std::mutex m_mutex;
    std::condition_variable m_free;
    Object *m_object{nullptr};
    int m_users{0};
};
