#pragma once

#include <string>

namespace quorva::resources {

/// The operations that all resource managers share, whatever their type.
class ResourceManagerInterface {
public:
    virtual ~ResourceManagerInterface() = default;

    virtual void save(std::string scope) = 0;
    virtual void load(std::string scope) = 0;  ///< reads the scope's file
    virtual void close(std::string scope) = 0; ///< drops what the scope brought
    virtual const std::string& getName() const = 0;
};

} // namespace quorva::resources
