#include "Framework/Managers/ResourceManagerManager.h"

#include <algorithm>
#include <functional>

namespace quorva::resources {

namespace {

using Managers = std::vector<ResourceManagerInterface*>;
using ByAddress = std::less<ResourceManagerInterface*>;

} // namespace

void ResourceManagerManagerClass::addResourceManager(ResourceManagerInterface* manager) {
    if (manager == nullptr) return;
    const auto range = std::equal_range(managers.begin(), managers.end(), manager, ByAddress());
    if (range.first != range.second) return;
    managers.push_back(manager);
    std::sort(managers.begin(), managers.end(), ByAddress());
}

void ResourceManagerManagerClass::removeResourceManager(ResourceManagerInterface* manager) {
    if (manager == nullptr) return;
    const auto range = std::equal_range(managers.begin(), managers.end(), manager, ByAddress());
    if (range.second - range.first == 1) managers.erase(range.first);
}

void ResourceManagerManagerClass::save(std::string scope) {
    for (ResourceManagerInterface* manager : managers)
        manager->save(scope);
}

void ResourceManagerManagerClass::load(std::string scope) {
    for (ResourceManagerInterface* manager : managers)
        manager->load(scope);
}

void ResourceManagerManagerClass::close(std::string scope) {
    for (ResourceManagerInterface* manager : managers)
        manager->close(scope);
}

} // namespace quorva::resources
