#pragma once

#include <loki/Singleton.h>

namespace quorva {

/// Holder of a service that is made at first use and freed at process exit, in reverse order of
/// creation. `Instance()` after that throws std::logic_error ("Dead Reference Detected").
template <class T>
using DefaultSingleton =
    Loki::SingletonHolder<T, Loki::CreateUsingNew, Loki::DefaultLifetime, Loki::SingleThreaded>;

/// The same, but a use after its end creates it anew, empty.
template <class T>
using ReturningSingleton =
    Loki::SingletonHolder<T, Loki::CreateUsingNew, Loki::PhoenixSingleton, Loki::SingleThreaded>;

/// The same, but never freed.
template <class T>
using EternalSingleton =
    Loki::SingletonHolder<T, Loki::CreateUsingNew, Loki::NoDestroy, Loki::SingleThreaded>;

} // namespace quorva
