// Base of the process-wide managers: one object, made on first use by whichever thread comes first, and never
// destroyed, so that code running at exit may still ask for it.
#pragma once

template<class T>
class Singleton {
public:
    Singleton(const Singleton &) = delete;
    Singleton &operator=(const Singleton &) = delete;

    [[nodiscard]] static T *instance()
    {
        static T *const object = new T;
        return object;
    }

protected:
    Singleton() = default;
    ~Singleton() = default;
};
