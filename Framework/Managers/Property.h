#pragma once

namespace quorva::resources {

/// Gives a plain value type a resource identity of its own.
template <class T>
class Property {
public:
    T value{};
};

} // namespace quorva::resources
