#pragma once

#include "Framework/Constants.h"
#include "Framework/Files.h"
#include "Framework/GameInfo.h"
#include "Framework/Managers/ResourceManagerManager.h"
#include "Framework/Managers/ResourceTraits.h"
#include "Framework/Managers/ScopedType.h"

#include <iostream>
#include <map>

namespace quorva {

/// Values of one type by name, read from a text file at construction. An unknown name never
/// fails: it becomes an entry with the type's default. The references that it hands out stay
/// good until the entry's scope is closed, also when the scope is loaded again.
template <class T, bool>
class ResourceManager : public resources::ResourceManagerInterface {
public:
    using Traits = resources::ResourceTraits<T>;
    using Entry = resources::ScopedType<T>;

    ResourceManager() : name(Traits::typeName()), defaultValue(Traits::defaultValue()) {
        load(::quorva::resources::system_scope);
        ::quorva::resources::ResourceManagerManager::Instance().addResourceManager(this);
    }
    ResourceManager(const ResourceManager&) = delete;
    ResourceManager& operator=(const ResourceManager&) = delete;

    /// The file of a scope: data/<name>.kov for the system's, else data/<scope>/<name>.kov.
    void setFilename(const std::string& scope) {
        const std::string folder = scope == ::quorva::resources::system_scope ? "" : scope + "/";
        filename = data_file_directory + folder + name + GameInfo::Instance().homeDirectory;
    }

    void load(std::string scope) override {
        setFilename(scope);
        std::ifstream file = utility::openForReading(filename, utility::largest_text_file);
        if (!file) {
            std::cerr << "Can't read" << name << " file: " << filename << '\n';
            return;
        }
        std::string line;
        while (std::getline(file, line)) {
            std::string entryName;
            T value = Traits::empty();
            if (Traits::parseLine(line, entryName, value)) add(entryName, value, scope);
        }
    }

    void save(std::string) override {}

    /// Deliberate: what the scope had displaced is brought back and then erased with the rest,
    /// so that the next getV of that name gives the default.
    void close(std::string scope) override {
        for (auto entry = resources.begin(); entry != resources.end();) {
            if (entry->second.scope != scope) {
                ++entry;
                continue;
            }
            shadowed.erase(entry->first);
            entry = resources.erase(entry);
        }
    }

    const std::string& getName() const override { return name; }

    /// An entry of this name goes to `shadowed`; the new one takes its place in memory.
    Entry& add(const std::string& entryName, const T& value, const std::string& scope) {
        const auto present = resources.find(entryName);
        if (present != resources.end()) shadowed[entryName] = present->second;
        return resources[entryName] = Entry(value, scope);
    }

    /// The value of that name, which the caller may write through.
    T& getV(std::string entryName) { // NOLINT(performance-unnecessary-value-param)
        const auto present = resources.find(entryName);
        if (present != resources.end()) return present->second.value;
        return add(entryName, defaultValue, ::quorva::resources::system_scope).value;
    }

    std::vector<std::string> scopes;
    std::string name;
    T defaultValue;
    std::map<std::string, Entry> resources;
    std::map<std::string, Entry> shadowed; ///< what a later add displaced, the latest alone
    std::string filename;                  ///< as setFilename left it
};

} // namespace quorva
