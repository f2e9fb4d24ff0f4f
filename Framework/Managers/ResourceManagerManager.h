#pragma once

#include "Framework/Graphics/Colour.h"
#include "Framework/Managers/ResourceManagerInterface.h"
#include "Framework/Singleton.h"

#include <vector>

namespace quorva::resources {

/// Knows every resource manager, and passes loading, saving and closing on to all of them.
class ResourceManagerManagerClass : public ResourceManagerInterface {
public:
    void addResourceManager(ResourceManagerInterface* manager); ///< null or known: no effect
    void removeResourceManager(ResourceManagerInterface* manager);

    void save(std::string scope) override;
    void load(std::string scope) override;
    void close(std::string scope) override;
    const std::string& getName() const override { return name; }

    std::vector<ResourceManagerInterface*> managers; ///< not owned, sorted by address
    std::string type = "resources";
    std::string name = "ResourceManagerManger"; ///< deliberately spelt so
    graphics::Colour colour = graphics::colours::white;
    std::vector<std::string> scopes;
};

using ResourceManagerManager = ReturningSingleton<ResourceManagerManagerClass>;

} // namespace quorva::resources
