// Anything as a resource file. The first byte says of which kind: colours, points and fonts go
// through their managers, materials and textures line by line.

#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/FontManager.h"
#include "Framework/Managers/PointManager.h"
#include "Framework/Managers/TextureResources.h"
#include "fuzz/Playground.h"

#include <sstream>

using namespace quorva;

namespace {

template <class T>
void readAs(const char* path, const std::uint8_t* data, std::size_t size) {
    fuzz::write(path, data, size);
    ResourceManager<T, true> manager;
    manager.load(resources::system_scope); // as after a change of the video mode
    const std::size_t entries = manager.resources.size();
    fuzz::require(manager.shadowed.size() == entries, "each is displaced by itself");
    for (const auto& [name, entry] : manager.resources)
        fuzz::require(&manager.getV(name) == &entry.value, "each is found by its name");
    fuzz::require(manager.resources.size() == entries, "looking makes no new ones");
    manager.close(resources::system_scope);
    fuzz::require(manager.resources.empty(), "all go with their scope");
    resources::ResourceManagerManager::Instance().removeResourceManager(&manager);
}

void readColours(const std::uint8_t* data, std::size_t size) {
    readAs<graphics::Colour>("data/Colour.kov", data, size);
}
void readPoints(const std::uint8_t* data, std::size_t size) {
    readAs<resources::Property<math::Point>>("data/Point.kov", data, size);
}
void readFonts(const std::uint8_t* data, std::size_t size) {
    readAs<graphics::Font>("data/Font.kov", data, size);
}

void readMaterials(const std::uint8_t* data, std::size_t size) {
    std::istringstream text(fuzz::textOf(data, size));
    graphics::Material material;
    std::string line;
    while (std::getline(text, line))
        resources::parseSubLine(line, material);
    ColourManager::Instance().close(resources::system_scope); // each unknown name is kept, else
}

void readTextures(const std::uint8_t* data, std::size_t size) {
    std::istringstream text(fuzz::textOf(data, size));
    std::string line;
    while (std::getline(text, line)) {
        std::string name;
        resources::TextureObject texture;
        resources::parseLineAndCreateTexture(line, name, texture);
    }
}

constexpr void (*kinds[])(const std::uint8_t*, std::size_t) = {readColours, readPoints, readFonts,
                                                               readMaterials, readTextures};

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool entered = (fuzz::enterPlayground(false), true);
    static_cast<void>(entered);
    if (size > 0) kinds[data[0] % std::size(kinds)](data + 1, size - 1);
    return 0;
}
