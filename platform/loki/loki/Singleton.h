#pragma once

#include <cassert>
#include <cstdlib>
#include <stdexcept>

// Stands in for the Loki library, which newer systems no longer have: its holder of singletons,
// with the policies that the game uses and under Loki's names (Modern C++ Design, Alexandrescu
// 2001). The build takes it only where the library isn't there.

namespace Loki {

using Ending = void (*)();

/// Makes an object by `new`, and deletes it.
template <class T>
struct CreateUsingNew {
    static T* Create() { return new T; }
    static void Destroy(T* object) { delete object; }
};

/// Ends with the process, in reverse order of creation. A use after that throws std::logic_error.
template <class T>
struct DefaultLifetime {
    static void ScheduleDestruction(T*, Ending ending) { std::atexit(ending); }
    static void OnDeadReference() { throw std::logic_error("Dead Reference Detected"); }
};

/// The same, but a use after its end makes another object, which is never deleted.
template <class T>
class PhoenixSingleton {
public:
    static void ScheduleDestruction(T*, Ending ending) {
        if (!hasReturned) std::atexit(ending);
    }
    static void OnDeadReference() { hasReturned = true; }

private:
    static inline bool hasReturned = false;
};

/// Never ends.
template <class T>
struct NoDestroy {
    static void ScheduleDestruction(T*, Ending) {}
    static void OnDeadReference() {}
};

/// No locks: one thread uses the singletons.
template <class T>
struct SingleThreaded {};

/// The one object of a class, made at first use.
template <class T, template <class> class Creation, template <class> class Lifetime,
          template <class> class Threading>
class SingletonHolder {
public:
    SingletonHolder() = delete;

    static T& Instance() {
        if (instance == nullptr) make();
        return *instance;
    }

private:
    static void make() {
        if (destroyed) {
            destroyed = false;
            Lifetime<T>::OnDeadReference();
        }
        instance = Creation<T>::Create();
        Lifetime<T>::ScheduleDestruction(instance, &destroy);
    }

    static void destroy() {
        assert(!destroyed);
        Creation<T>::Destroy(instance);
        instance = nullptr;
        destroyed = true;
    }

    static inline T* instance = nullptr; ///< owned; the lifetime says until when
    static inline bool destroyed = false;
};

} // namespace Loki
