#pragma once

#include "Framework/Constants.h"

namespace quorva::resources {

/// One stored resource, with the load that brought it in.
template <class T>
class ScopedType {
public:
    ScopedType() = default;
    ScopedType(const T& value_, std::string scope_) : value(value_), scope(std::move(scope_)) {}
    ScopedType(const ScopedType&) = default;
    ScopedType& operator=(const ScopedType&) = default;
    virtual ~ScopedType() = default;

    T value{};
    std::string scope = system_scope;
};

} // namespace quorva::resources
